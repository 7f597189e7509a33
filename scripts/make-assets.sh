#!/usr/bin/env bash
# Remakes every picture, sound and piece of music of the game into data/ from the generators in tools/assets,
# byte for byte the same on every run. Needs a configured build folder (default build/release).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
cmake --build "$build" --target trelvane-images trelvane-sounds
"$build/bin/trelvane-images" data
"$build/bin/trelvane-sounds" data
