#!/usr/bin/env bash
# Makes docs/screenshots/screen-*.png: what korva-pad shows on screens that people have, light and dark, one sheet a
# screen. Look at them afterwards. Arguments name the screens to do again, for example: docs/screens.sh 240x320
#
# A dark desktop is one with dark colors in ~/.config/kdeglobals; on a bare X server QT_QPA_PLATFORMTHEME=kde makes
# the toolkit read that file, as it does by itself on such a desktop.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
. cmake/packages.sh
need_packages "${build_packages[@]}" xvfb xdotool openbox imagemagick

[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
ninja -C build/release --quiet korva-pad
pad=$root/build/release/host/korva-pad
sheets=$root/docs/screenshots

# Screen, state of the window, width of a tile, tiles in a row.
screens='240x320    fullscreen  240  8
         800x480    fullscreen  400  6
         1366x768   fullscreen  400  6
         1920x1080  -           240  8
         3840x2160  fullscreen  400  6'

work=$(mktemp -d)
started=()
finish() {
    kill "${started[@]}" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT

# --- A person at the screen

pause() { sleep "${KORVA_PAUSE:-0.5}"; }
press() { xdotool key --delay 60 "$@"; pause; }
# In the editor.
point() { xdotool mousemove $((left + (beside + $1) * scale)) $((top + $2 * scale)); }
rest() { point 238 223; }
tap() { point "$1" "$2"; xdotool click 1; pause; rest; }
# From the middle of the picture.
paper() { point $((middle_x + $1)) $((middle_y + $2)); }
photograph() { import -silent -window root -crop "$place" +repage "$1"; }

# shot NAME: a tile; it must differ from the start and from the one before, or what it is to show did not come.
shot() {
    count=$((count + 1))
    local file
    file=$shots/$(printf %02d $count).png
    photograph "$file"
    convert "$file" -resize "${width}x>" -set label "$1" "$file"
    local signature
    signature=$(identify -format %# "$file")
    [ "$1" = start ] && first=$signature last=''
    [ "$1" != start ] && [[ $signature == "$first" || $signature == "$last" ]] &&
        echo "$screen $look: nothing came for '$1'" >&2
    last=$signature
}

start_pad() {
    "$pad" "$@" 2>>"$work/errors" &
    program=$!
    started+=("$program")
    disown
    local id=''
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --pid "$program" --name Korva 2>/dev/null | head -1) && [ -n "$id" ] && break
        sleep 0.1
    done
    sleep 1.5
    eval "$(xdotool getwindowgeometry --shell "$id" | sed 's/^/window_/')"
    left=$window_X top=$window_Y
    place=${window_WIDTH}x${window_HEIGHT}+$left+$top
    # The panel of a large window.
    beside=$((window_WIDTH / scale >= 640 && window_HEIGHT / scale >= 400 ? 124 : 0))
    middle_x=$(((window_WIDTH / scale - beside) / 2)) middle_y=$(((window_HEIGHT / scale - 68) / 2))
    rest
}

end_pad() {
    kill -9 "$program" 2>/dev/null || true
    sleep 0.3
}

# --- The desktop

# Windows without a frame: a place on the screen is the window's own.
printf '<openbox_config xmlns="http://openbox.org/3.4/rc"><applications><application class="*"><decor>no</decor>%s' \
    '</application></applications></openbox_config>' >"$work/openbox.xml"

dark_colors() {
    cat <<'COLORS'
[Colors:Window]
BackgroundNormal=35,38,41
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
COLORS
}

# Pictures with names of a person's length.
draw_pictures() {
    mkdir -p "$pictures"
    convert -size 200x170 xc:white -fill '#78aa5a' -draw 'rectangle 0,110 199,169' -fill '#fac83c' \
        -draw 'circle 158,33 158,51' -fill none -stroke '#3c5a96' -strokewidth 3 \
        -draw 'polyline 10,110 50,50 75,85 100,40 150,110' -stroke red -strokewidth 1 \
        -draw 'rectangle 30,120 70,150' -draw 'polyline 26,120 50,98 74,120' "$pictures/house by the hills.png"
    local name hue=0
    for name in 'holiday at the sea 1' 'holiday at the sea 2' 'plan of the kitchen' map birthday 'a note' garden; do
        convert -size 240x180 "gradient:hsl($hue,160,120)-hsl($((hue + 60)),120,220)" "$pictures/$name.jpg"
        hue=$((hue + 45))
    done
}

# --- What is shown

take_all() {
    local picture="$pictures/house by the hills.png"
    start_pad "$picture"
    shot start
    press F10; shot menu
    for page in p:picture e:edit t:tool v:view; do
        press "${page%%:*}"; shot "menu: ${page#*:}"
        press Escape Escape; press F10
    done
    press Escape
    tap 18 14; shot tools; press Escape
    tap 54 14; shot 'options: pencil'; press Escape
    press s; tap 54 14; shot 'options: select'; press Escape
    press p; tap 137 14; shot zoom; press Escape
    tap 215 14; shot colors; press Escape
    press F1; shot keys; press Tab Return; shot buttons; press Escape
    press ctrl+m; shot 'save for a message'; press Escape
    press ctrl+p; shot print; press Escape
    press ctrl+o; shot open; press Escape
    press ctrl+shift+s; shot 'save as'; press Escape
    press ctrl+i; shot 'insert stamp'; press Escape
    press ctrl+Delete; shot 'delete picture'; press Escape

    press p; paper -50 0; xdotool mousedown 1; paper 10 50; paper 50 -30; xdotool mouseup 1; pause
    rest; shot drawing
    press ctrl+a; shot 'select all'
    press p
    press ctrl+n; shot 'save changes?'
    press Tab Return; shot 'canvas size'
    press Return; shot 'how many colors?'
    press Return; shot 'new drawing'
    press ctrl+e; shot 'earlier drawings'; press Escape
    press ctrl+n; press Return; press Tab Tab Return
    press ctrl+d; shot 'save in few colors'; press Escape
    press t; paper -40 -20; xdotool click 1; xdotool type --delay 60 Hello; pause; shot text
    press ctrl+s; shot 'save a new drawing'; press Escape
    press ctrl+o; shot 'before opening'; press Escape
    press ctrl+q; shot 'before quitting'; press Escape
    end_pad
    start_pad
    pause
    pause
    shot 'after a crash'
    press Return; shot 'brought back'
    end_pad
    start_pad --no-recovery "$picture"
    press p; paper 0 0; xdotool click 1; pause
    press ctrl+s; shot 'fewer colors'
    press Tab Return; shot saved
    end_pad
}

# --- Sheets

printf '%s\n' "$screens" | while read -r screen state width columns; do
    [ $# -eq 0 ] || [[ " $* " == *" $screen "* ]] || continue
    for look in light dark; do
        home=$work/$screen-$look
        shots=$work/shots/$screen-$look
        pictures=$home/Pictures
        mkdir -p "$shots" "$home/.config/korva"
        draw_pictures
        printf '[folders]\nlast=%s\n[start]\nbuttons=true\n[window-%s]\n' "$pictures" "$screen" >"$home/.config/korva/pad.conf"
        [ "$state" = - ] || echo "state=$state" >>"$home/.config/korva/pad.conf"
        export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local XDG_STATE_HOME=$home/.state LC_ALL=C.UTF-8
        export XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb QT_LOGGING_RULES='qt.qpa.theme.dbus=false'
        unset QT_QPA_PLATFORMTHEME WAYLAND_DISPLAY XDG_CURRENT_DESKTOP
        if [ "$look" = dark ]; then
            dark_colors >"$home/.config/kdeglobals"
            export QT_QPA_PLATFORMTHEME=kde KDE_SESSION_VERSION=5
        fi

        Xvfb -displayfd 3 -screen 0 "${screen}x24" -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
        server=$!
        until [ -s "$work/display" ]; do sleep 0.1; done
        DISPLAY=:$(cat "$work/display")
        export DISPLAY
        started+=("$server")
        openbox --config-file "$work/openbox.xml" >/dev/null 2>&1 &
        started+=("$!")
        sleep 0.5
        # As korva-pad chooses it.
        height=${screen#*x}
        scale=$((height >= 900 ? height / 450 : 1))
        count=0
        take_all
        kill "$server"
        rm "$work/display"
    done
    for look in light dark; do
        montage -background '#808080' -fill white -font DejaVu-Sans -pointsize 12 -label '%[label]' \
            "$work/shots/$screen-$look"/*.png -tile "${columns}x" -geometry +4+4 \
            "$work/$look.png"
    done
    convert "$work/light.png" "$work/dark.png" -append -strip +dither -colors 128 -define png:compression-level=9 \
        "PNG8:$sheets/screen-$screen.png"
    [ -z "${KORVA_KEEP:-}" ] || cp -r "$work/shots" "$KORVA_KEEP"
done
ls -l "$sheets"
cat "$work/errors" >&2
