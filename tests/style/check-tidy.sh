#!/usr/bin/env bash
# Fails, naming each finding, when clang-tidy with the project's .clang-tidy finds anything in the game's own
# code. Needs the compile commands of a configured build folder.
set -euo pipefail
source_dir=$1
build_dir=$2
cd "$source_dir"
find src -name '*.cpp' | sort |
  xargs -P "$(nproc)" -n 8 clang-tidy -p "$build_dir" --quiet --warnings-as-errors='*' 2>/dev/null
