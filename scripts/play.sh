#!/usr/bin/env bash
# Installs what is missing, builds Trelvane and starts it from the folder that holds its data.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build/release --target trelvane
# Ports below 1024 are for privileged programs only; this lets the built game host on port 666 for any user.
if ! setcap cap_net_bind_service=+ep build/release/bin/trelvane; then
  echo "Could not let the game bind port 666 (see README: The network game); hosting needs root then." >&2
fi
bash scripts/make-assets.sh build/release
exec build/release/bin/trelvane
