#!/usr/bin/env bash
# Lets a monkey loose on korva-pad in a window of a virtual screen: ./monkey [EVENTS] [SEED] builds the pad with
# sanitizers (installing what is missing) and sends it so many events (20,000). The seed that is printed makes the same
# choices again. Ends with 0 if nothing was found.
set -euo pipefail
cd "$(dirname "$0")"

if [ $# -gt 2 ] || ! [[ ${1-1} =~ ^[0-9]+$ && ${2-1} =~ ^[0-9]+$ ]]; then
    echo 'Usage: ./monkey [EVENTS] [SEED]' >&2
    exit 1
fi

. cmake/packages.sh
need_packages "${build_packages[@]}" libbenchmark-dev libx11-dev libxext-dev libxdamage-dev libxtst-dev libwayland-dev \
    xvfb xclip bubblewrap imagemagick python3
if [ ! -f build/test/build.ninja ]; then
    cmake --preset test >/dev/null
fi
cmake --build --preset test --target korva-pad -- --quiet
exec python3 -B tests/endurance/monkey.py build/test/host/korva-pad "$@"
