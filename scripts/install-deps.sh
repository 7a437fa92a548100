#!/usr/bin/env bash
# Installs what Ostraline needs to build, test and run on Debian, if missing.
set -euo pipefail
packages=(cmake ninja-build g++ clang libclang-rt-dev libgtest-dev libgmock-dev libbenchmark-dev
          qt6-base-dev libgl1-mesa-dev fonts-liberation xvfb xauth
          desktop-file-utils man-db dpkg-dev)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then SUDO=sudo; else SUDO=; fi
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
