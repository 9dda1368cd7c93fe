# Sourced by the tests: a home of their own, no screen, and one font, so that lettering is the same everywhere.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -m 700 "$work/home" "$work/run"
cat >"$work/fonts.conf" <<FONTS
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
<dir>/usr/share/fonts/truetype/dejavu</dir>
<cachedir>$work/fonts</cachedir>
<match><edit name="family" mode="append_last"><string>DejaVu Sans</string></edit></match>
</fontconfig>
FONTS
export HOME="$work/home" XDG_RUNTIME_DIR="$work/run" FONTCONFIG_FILE="$work/fonts.conf" QT_QPA_PLATFORM=offscreen
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CACHE_HOME
