#!/usr/bin/env bash
# Makes docs/screenshots/scale-*.png and pad-*.png: the editor's pop-ups and dialogs, and what korva-pad asks, at
# scale 1, 2 and 3. Look at them afterwards.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

cmake --preset test >/dev/null
cmake --build --preset test --target korva-screenshots korva-pad-screenshots -- --quiet
mkdir -p docs/screenshots
for scale in 1 2 3; do
    for sheet in scale pad; do
        program=korva-screenshots
        [ $sheet = scale ] || program=korva-pad-screenshots
        file=docs/screenshots/$sheet-$scale.png
        ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=xcb QT_ENABLE_HIGHDPI_SCALING=0 QT_SCALE_FACTOR=$scale \
            xvfb-run -a -s '-screen 0 1000x1000x24' "build/test/docs/$program" "$file"
        # 255 colors are nearly all there are, and make the file half as large.
        convert "$file" -strip +dither -colors 255 -define png:compression-level=9 "PNG8:$file"
    done
done
ls -l docs/screenshots
