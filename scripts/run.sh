#!/usr/bin/env bash
# Installs what is missing, builds Ostraline and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRALINE_TESTS=OFF
cmake --build build-release -j"$(nproc)"
program=build-release/desktop/ostraline
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program" "$@"
fi
echo "There is no display here: writing a screenshot of the main window instead."
xvfb-run -a "$program" --screenshot ostraline-screenshot.png "$@"
echo "Screenshot: $(pwd)/ostraline-screenshot.png"
