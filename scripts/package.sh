#!/usr/bin/env bash
# Builds the Debian package of Ostraline: installs what is missing, makes a
# Release build without the tests and prints the path of the .deb.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
build=build-package
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRALINE_TESTS=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build "$build" -j"${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"
(cd "$build" && cpack -G DEB >/dev/null)
package=$(ls -t "$build"/ostraline_*.deb | head -n 1)
echo "The package: $(pwd)/$package"
