#!/usr/bin/env bash
# Fails, naming each place, when a C++ file of the tree is not laid out as .clang-format says. Changes nothing;
# `clang-format -i FILE` lays a file out.
set -euo pipefail
cd "$1"
find src tools tests -name '*.cpp' -o -name '*.h' | sort | xargs clang-format --dry-run --Werror
