#!/usr/bin/env bash
# Installs the Debian packages that Trelvane needs and that are missing; does nothing when all are there.
#   install-deps.sh game    what building and running the game and its tools needs
#   install-deps.sh tests   that, and what the test suite needs besides
set -euo pipefail

GAME=(
  build-essential cmake ninja-build pkg-config   # the build
  libsdl2-dev libsdl2-mixer-dev libsdl2-image-dev libsdl2-ttf-dev fonts-dejavu-core   # the platform layer
  libgl1 libgl1-mesa-dri libglx-mesa0 libegl1 libegl-mesa0                          # OpenGL at run time
  lame                                           # encodes the generated music
  libcap2-bin                                    # lets the built game take port 666 without being root
)
TESTS=(
  libgtest-dev libbenchmark-dev                  # tests and benchmarks
  clang libclang-rt-14-dev                       # the sanitizer build and the fuzz targets
  clang-format clang-tidy                        # the style checks
  xvfb xauth xdotool                             # the real game under a virtual display, driven by synthetic input
  iproute2                                       # network tests run on a loopback of their own
  python3                                        # the soak reads the bots' reports
  file desktop-file-utils appstream lintian man-db   # the installation and the package are checked
)

case "${1:-}" in
  game) wanted=("${GAME[@]}") ;;
  tests) wanted=("${GAME[@]}" "${TESTS[@]}") ;;
  *) echo "usage: install-deps.sh game|tests" >&2; exit 2 ;;
esac

# One query for all: a package that is missing or not fully installed prints no "installed" line.
installed=$(dpkg-query -W -f='${Package} ${Status}\n' "${wanted[@]}" 2>/dev/null | awk '/ install ok installed$/ {print $1}' || true)
missing=()
for package in "${wanted[@]}"; do
  grep -qx "$package" <<< "$installed" || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update
  apt-get install -y --no-install-recommends "${missing[@]}"
fi
