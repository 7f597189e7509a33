#!/usr/bin/env bash
# Installs what is missing, builds Trelvane and starts it from the folder that holds its data.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build/release --target trelvane
bash scripts/make-assets.sh build/release
exec build/release/bin/trelvane
