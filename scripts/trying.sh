# shellcheck shell=bash
# What the scripts share that try packages as an operator does; read with `source` after common.sh, not run. They
# keep what they need in the folder $work, and say by a function close_window how the program's window is closed.

display= # the process of our own display, once there is one

step() { echo "== $*"; }

# open_display [options of Xvfb...]: a display of our own; sets DISPLAY and display.
open_display() {
    mkfifo "$work/number"
    Xvfb -displayfd 3 -screen 0 1920x1200x24 -noreset "$@" 3>"$work/number" 2>/dev/null &
    display=$!
    DISPLAY=:$(head -n 1 "$work/number")
    export DISPLAY
}

# until_so WORDS COMMAND...: waits up to 30 s until the command succeeds.
until_so() {
    local words=$1
    shift
    for _ in $(seq 300); do
        ! "$@" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    fail "waited in vain: $words"
}

window_is_there() { xdotool search --onlyvisible --name '^TAL-VERO Connect$'; }

# manage_windows: a window manager for the display, which closes windows as an operator does.
manage_windows() {
    openbox >"$work/openbox" 2>&1 &
    until_so "the window manager" wmctrl -m
}

# try_window LOG WORDS COMMAND...: starts the program by the command, which makes it write LOG; it must show its window,
# tell its version in the log, and end by itself with 0 when the window is closed. Tells the time since $begun, if set.
try_window() {
    local log=$1 words=$2 code=0 program
    shift 2
    "$@" >"$work/program" 2>&1 </dev/null &
    program=$!
    until_so "the window of $words" window_is_there
    [ -z "${begun:-}" ] || echo "Its window is there after $((SECONDS - begun)) s"
    close_window
    wait "$program" || code=$?
    [ "$code" = 0 ] || { cat "$work/program" && fail "the program of $words ended with $code"; }
    grep -q 'TAL-VERO Connect [0-9.]* on ' "$log" || fail "the program of $words wrote no log"
}
