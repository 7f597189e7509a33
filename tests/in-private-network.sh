#!/usr/bin/env bash
# Runs a command in a network namespace of its own whose one interface is a loopback that is up: what the
# tests listen on (the game's port 666 among it) is neither taken from the machine's own interfaces nor offered
# on them, and tests that run side by side never meet on a port. Where no such network can be made the command
# runs in the machine's; the tests that need the game's port hold a resource lock for that case.
set -euo pipefail
if unshare -n sh -c 'ip link set lo up' >/dev/null 2>&1; then
  exec unshare -n sh -c 'ip link set lo up && exec "$@"' sh "$@"
fi
exec "$@"
