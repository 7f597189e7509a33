#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Trelvane need; does nothing when all are there.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build pkg-config   # the build
  libgtest-dev libbenchmark-dev                  # tests and benchmarks
  clang libclang-rt-14-dev                       # the sanitizer build and the fuzz targets
  libsdl2-dev libsdl2-mixer-dev libsdl2-image-dev libsdl2-ttf-dev fonts-dejavu-core   # the platform layer
  libgl1 libgl1-mesa-dri libglx-mesa0 libegl1 libegl-mesa0                          # OpenGL at run time
  lame                                           # encodes the generated music
  xvfb xauth xdotool                             # the real game under a virtual display, driven by synthetic input
  iproute2                                       # network tests run on a loopback of their own
  python3                                        # the soak reads the bots' reports
  libcap2-bin                                    # lets the built game take port 666 without being root
)

missing=()
for package in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update
  apt-get install -y --no-install-recommends "${missing[@]}"
fi
