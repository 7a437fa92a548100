#!/usr/bin/env bash
# Installs what is missing, builds Ostraline and starts it with the sample
# project. Without a display it writes a screenshot and a converted sample
# file instead, and says where they are.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRALINE_TESTS=OFF
cmake --build build-release -j"$(nproc)"
program=build-release/desktop/ostraline
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program" --demo "$@"
fi

echo "There is no display here, so Ostraline shows its work in files instead."
# A wide screen, so that the Duo (--duo) finds room beside the main window.
xvfb-run -a -s "-screen 0 2560x1200x24" "$program" --demo --screenshot ostraline-screenshot.png "$@"
build-release/cli/ostraline-convert \
  --model samples/correlation_model_20250314.csv --events samples/event_layers_20250320.csv \
  --ages samples/age_depth_model_20250402.csv --varves samples/varve_counts_20250325.csv \
  samples/positions.csv ostraline-positions-converted.csv
echo "The main window with the sample project: $(pwd)/ostraline-screenshot.png"
echo "The sample positions on every scale:     $(pwd)/ostraline-positions-converted.csv"
