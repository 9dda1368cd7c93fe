# Sourced by ./run, ./test and their like: need_packages NAME... installs what is missing of Debian's packages.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

need_packages() {
    local installed missing=() package
    installed=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
    for package in "$@"; do
        [[ $installed == *" installed:$package "* ]] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    echo "Installing what is missing: ${missing[*]}" >&2
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

build_packages=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libxcb1-dev libxcb-randr0-dev qt6-tools-dev qt6-l10n-tools
    qt6-image-formats-plugins qt6-wayland libgif-dev libjpeg-dev libpng-dev fonts-dejavu-core)

python_packages=(pyqt6-dev python3-dev python3-pyqt6 sip-tools)
site_packages=(doxygen mandoc python3 python3-markdown-it python3-pygments)

test_packages=("${python_packages[@]}" "${site_packages[@]}" mujs python3-yaml git xvfb xauth xclip imagemagick man-db
    appstream desktop-file-utils libbenchmark-dev libx11-dev libxext-dev libxdamage-dev libxtst-dev
    libqt6opengl6-dev dpkg-dev debhelper dh-python fakeroot lintian xz-utils sway grim libwayland-dev
    fonts-droid-fallback fonts-lohit-deva fonts-tlwg-loma-otf
    at-spi2-core dbus-daemon ibus ibus-table ibus-table-latex bubblewrap)
