#!/usr/bin/env bash
# Installs what the game needs and is missing, builds what changed (the game and its data) and starts the game
# from the folder that holds its data. With nothing changed it starts at once.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh game
build=build/release
# Configured once; after that the build itself notices a changed CMakeLists and configures again.
if [ ! -f "$build/build.ninja" ]; then
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTRELVANE_TESTS=OFF -DTRELVANE_BENCH=OFF
fi
cmake --build "$build" --target trelvane trelvane_assets
# Ports below 1024 are for privileged programs only; this lets the built game host on port 666 for any user.
if ! getcap "$build/bin/trelvane" | grep -q cap_net_bind_service; then
  setcap cap_net_bind_service=+ep "$build/bin/trelvane" ||
    echo "Could not let the game bind port 666 (see README: The network game); hosting needs root then." >&2
fi
exec "$build/bin/trelvane"
