#!/usr/bin/env bash
# Runs a command in a network namespace of its own whose one interface is a loopback that is up: what the
# tests listen on can't be reached from anywhere else, and tests that run side by side never meet on a port.
# Where no namespace can be made, the command runs as it is.
set -euo pipefail
if command -v ip >/dev/null && unshare -n true 2>/dev/null; then
  exec unshare -n sh -c 'ip link set lo up && exec "$@"' sh "$@"
fi
exec "$@"
