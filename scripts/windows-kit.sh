# shellcheck shell=bash
# What the scripts for Windows share; read with `source` after common.sh, not run.

windows_build=$root/build/windows-cross
windows_ports=$windows_build/ports # links to the terminals that stand behind Wine's COM ports

# Which of Wine's ports a test may use; each test program has ports of its own. One lies above COM9.
windows_port_numbers=(5 7 8 9 12 13 14)

[ -z "${TALVERO_WINDOWS_SDK:-}" ] || [ -e "$TALVERO_WINDOWS_SDK" ] ||
    fail "TALVERO_WINDOWS_SDK names nothing: $TALVERO_WINDOWS_SDK"

# given_kit: prints the kit for Windows that this machine holds: what TALVERO_WINDOWS_SDK names, or what stands
# at ../shared/windows, or what scripts/windows-sdk has made. Fails if there is none.
given_kit() {
    local place
    if [ -n "${TALVERO_WINDOWS_SDK:-}" ]; then
        realpath "$TALVERO_WINDOWS_SDK"
        return
    fi
    for place in "$root/../shared/windows" "$root/build/windows-kit"; do
        if [ -e "$place/windows-sdk.tar.xz" ] || [ -d "$place/sdk" ]; then
            realpath "$place"
            return
        fi
    done
    return 1
}

# open_kit KIT: sets TALVERO_WINDOWS_SDK to the folder with Qt of a kit, which is that folder, its packed file,
# or a folder with either. A packed one is unpacked once, in build/windows-sdk.
open_kit() {
    local kit=$1 folder stamp
    for folder in "$kit" "$kit/sdk"; do
        if [ -e "$folder/lib/cmake/Qt5/Qt5Config.cmake" ]; then
            export TALVERO_WINDOWS_SDK=$folder
            return
        fi
    done
    [ ! -d "$kit" ] || kit=$kit/windows-sdk.tar.xz
    [ -f "$kit" ] || fail "no kit for Windows: $kit"
    folder=$root/build/windows-sdk
    stamp=$(stat -c '%n %s %Y' "$kit")
    if [ "$(cat "$folder/stamp" 2>/dev/null)" != "$stamp" ]; then
        rm -rf "$folder"
        mkdir -p "$folder"
        tar xJf "$kit" -C "$folder"
        echo "$stamp" >"$folder/stamp"
    fi
    export TALVERO_WINDOWS_SDK=$folder/sdk
}

# configure_windows [cmake options...]: with warnings as errors; anew where the kit has changed.
configure_windows() {
    local cache=$windows_build/CMakeCache.txt
    if [ -e "$cache" ] && ! grep -qx "TALVERO_WINDOWS_SDK:PATH=$TALVERO_WINDOWS_SDK" "$cache"; then
        rm "$cache"
    fi
    TALVERO_WERROR=ON configure windows-cross "$@"
}

# use_wine PREFIX: makes a place for Wine there, unless one is, with a font that its own stand-in for Windows'
# lacks, and COM ports that lead to what tests link in $windows_ports. Nothing is shown on a display.
use_wine() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=d;mshtml=d;winemenubuilder.exe=d"
    unset DISPLAY
    local number ready=$WINEPREFIX/talvero-ready
    [ "$(cat "$ready" 2>/dev/null)" != "${windows_port_numbers[*]}" ] || return 0
    mkdir -p "$WINEPREFIX" "$windows_ports"
    wine wineboot -i >"$WINEPREFIX/wineboot.log" 2>&1
    ln -sf /usr/share/wine/fonts/tahoma*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    for number in "${windows_port_numbers[@]}"; do
        wine reg add 'HKLM\Software\Wine\Ports' /v "COM$number" /d "$windows_ports/line$number" /f
    done >"$WINEPREFIX/ports.log" 2>&1
    wineserver -w # Wine looks for ports when it starts
    echo "${windows_port_numbers[*]}" >"$ready"
}

# hold_desktop: Wine makes its desktop for the first window and waits for that no longer than 10 s, too short
# where many programs begin at once on a busy machine: whichever wants a window then hangs. This one holds it.
hold_desktop() {
    wine explorer /desktop >/dev/null 2>&1 </dev/null &
    wine cmd /c exit >/dev/null 2>&1 </dev/null
}
