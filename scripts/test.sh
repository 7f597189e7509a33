#!/usr/bin/env bash
# Installs what is missing, then builds and runs the whole test suite twice: an optimised build with the
# benchmarks' smoke run, the style checks and the installation and package checks, and a clang build under
# AddressSanitizer and UndefinedBehaviorSanitizer that also runs every fuzz target for a few seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh tests
jobs=$(nproc)

cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTRELVANE_TESTS=ON -DTRELVANE_BENCH=ON
cmake --build build/release -j "$jobs"
ctest --test-dir build/release --output-on-failure -j "$jobs"

CC=clang CXX=clang++ cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DTRELVANE_SANITIZE=ON -DTRELVANE_FUZZ=ON -DTRELVANE_BENCH=OFF
cmake --build build/sanitize -j "$jobs"
ctest --test-dir build/sanitize --output-on-failure -j "$jobs"
