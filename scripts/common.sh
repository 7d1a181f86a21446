# Shared by the scripts of this folder; read with `source`, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# fail WORDS...: ends the script and says why.
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# help_if_asked "$@": for --help prints the comment at the top of the script that is run, and ends it.
help_if_asked() {
    [ "${1:-}" = --help ] || return 0
    sed -n '2,/^[^#]/{s/^# \{0,1\}//p}' "$0"
    exit 0
}

# install_missing PACKAGE...: installs those that this Debian or Ubuntu machine lacks.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ "${#missing[@]}" -gt 0 ] || return 0
    echo "Installing: ${missing[*]}"
    local asRoot=()
    [ "$(id -u)" -eq 0 ] || asRoot=(sudo)
    "${asRoot[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${asRoot[@]}" apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# What building and running need; cmark-gfm makes the manual's page. The fonts stand in for those that a bare
# machine lacks.
build_packages=(g++ cmake ninja-build qtbase5-dev libqt5serialport5-dev cmark-gfm fonts-dejavu-core)

# What building with Qt 6 needs besides, on Debian 12, Ubuntu 24.04 or later: older ones have no Qt 6.4.
qt6_packages=(qt6-base-dev qt6-base-dev-tools qt6-serialport-dev qt6-qpa-plugins)

# What the tests need besides: a locale that writes "0,5" (made from `locales`), and what stands between
# the program and a screen reader.
test_packages=(locales at-spi2-core dbus gir1.2-atspi-2.0 python3-gi xdotool xvfb)

# What packing for Linux needs, what looking at the packages does, and what trying them on a bare Debian does.
linux_packages=(dpkg-dev rpm)
linux_check_packages=(appstream cpio desktop-file-utils lintian man-db openbox rpm2cpio wmctrl xdotool xvfb)
bare_debian_packages=(debootstrap openbox wmctrl xdotool xvfb)

# What cross-building for Windows, running there and packing need; the fonts stand in for Windows' own.
windows_packages=(cmake ninja-build cmark-gfm g++-mingw-w64-x86-64-posix wine wine64 fonts-wine fonts-dejavu-core nsis
    unzip xz-utils socat xvfb xauth xdotool)

# configure PRESET [cmake options...]
configure() {
    local preset=$1
    shift
    (cd "$root" && cmake --preset "$preset" -DTALVERO_WERROR="${TALVERO_WERROR:-OFF}" "$@" >/dev/null)
}
