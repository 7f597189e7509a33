#!/usr/bin/env bash
# Runs a command on a fresh 800x600 virtual display whose frame buffer is kept in a file, so that a test can
# read what the screen shows; the file's folder is handed over in TRELVANE_E2E_FBDIR.
set -euo pipefail
fbdir=$(mktemp -d)
trap 'rm -rf "$fbdir"' EXIT
TRELVANE_E2E_FBDIR="$fbdir" xvfb-run -a -s "-screen 0 800x600x24 -fbdir $fbdir" "$@"
