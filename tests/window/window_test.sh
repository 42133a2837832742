#!/bin/bash
# The program as its viewers have it: a real window, real keys, real signals. One case a run.
# Usage: window_test.sh CASE PROGRAM CLOSE_WINDOW
# It brings an X server of its own, without a window manager.

set -u
program=$2
close_window=$3
title="Hard Silence by Quillon 2012"
# From the key to the end of the process: 100 ms is promised; a busy machine of two cores gets three times that.
promised_ms=100
slack=3

work=$(mktemp -d)
pid=
server=
cleanup() {
    [ -n "$pid" ] && kill -KILL "$pid" 2>/dev/null
    [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# Starts an X server on a free display. (xvfb-run -a may hand out one that is just shutting down.)
serve() {
    Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp "$@" >"$work/display" 2>"$work/server" &
    server=$!
    for _ in $(seq 200); do
        [ -s "$work/display" ] && break
        sleep 0.05
    done
    [ -s "$work/display" ] || fail "no X server"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
}

fail() {
    echo "FAILED: $*"
    for file in out err; do
        [ -f "$work/$file" ] && sed "s/^/  $file: /" "$work/$file" | cut -c1-300 | head -n 20
    done
    exit 1
}

# Starts the program and waits for its window.
launch() {
    "$program" "$@" >"$work/out" 2>"$work/err" &
    pid=$!
    window=
    for _ in $(seq 200); do
        window=$(xdotool search --name "$title" 2>/dev/null | tail -n 1)
        [ -n "$window" ] && break
        kill -0 "$pid" 2>/dev/null || fail "ended before its window opened"
        sleep 0.05
    done
    [ -n "$window" ] || fail "no window after 10 s"
    sleep 0.3
    xdotool windowfocus "$window"
    sleep 0.3
}

start() { launch -w -width 320 -novsync -mute "$@"; }

running() { kill -0 "$pid" 2>/dev/null || fail "the program has ended: $*"; }

# Waits for the program to end; sets status, and took (ms since the given time in ms).
now_ms() { echo $(($(date +%s%N) / 1000000)); }
finish() {
    local begun=${1:-$(now_ms)}
    (
        exec >/dev/null 2>&1 </dev/null # or whoever reads our output would wait for the sleep
        sleep 10
        kill -KILL "$pid"
    ) &
    local guard=$!
    wait "$pid"
    status=$?
    took=$(($(now_ms) - begun))
    kill "$guard" 2>/dev/null
    pid=
    [ "$status" = "$2" ] || fail "status $status instead of $2"
}

escape() {
    local begun
    begun=$(now_ms)
    xdotool key Escape
    finish "$begun" 0
}

# The window's picture: its sum, its brightness in percent.
picture() { import -silent -window "$window" "$work/$1.ppm" && md5sum <"$work/$1.ppm"; }
brightness() {
    import -silent -window "$window" -colorspace gray -format '%[fx:round(100*mean)]' info:-
}
# The middle one of three, for strobes.
steady_brightness() {
    for _ in 1 2 3; do
        brightness
        echo
        sleep 0.03
    done | sort -n | sed -n 2p
}

differs() { [ "$1" != "$2" ] || fail "$3"; }
same() { [ "$1" = "$2" ] || fail "$3"; }

moving() { # whether the picture changes within two seconds
    local first
    first=$(picture a)
    for _ in $(seq 10); do
        sleep 0.2
        [ "$(picture b)" != "$first" ] && return 0
    done
    return 1
}

case $1 in
no_display | options) ;;
no_randr) serve -extension RANDR ;;
*) serve ;;
esac

case $1 in
escape)
    start
    sleep 0.5
    escape
    echo "from Escape to the end of the process: $took ms"
    [ "$took" -le $((promised_ms * slack)) ] || fail "took $took ms, promised $promised_ms"
    ;;
escape_at_once) # while it has hardly drawn a frame
    start
    escape
    [ "$took" -le $((promised_ms * slack)) ] || fail "took $took ms, promised $promised_ms"
    ;;
close_button)
    start
    "$close_window" "$window" || fail "the message was not sent"
    finish "$(now_ms)" 0
    [ "$took" -le $((promised_ms * slack)) ] || fail "took $took ms"
    ;;
signals)
    for signal in INT TERM; do
        start
        kill -s "$signal" "$pid"
        finish "$(now_ms)" 0
    done
    ;;
full_screen)
    launch -mute
    geometry=$(xdotool getwindowgeometry "$window" | grep Geometry)
    echo "$geometry"
    running "full screen"
    escape
    ;;
no_randr)
    launch -width 320 -mute
    grep -q "^This display offers no full-screen modes; the show plays in a window.$" "$work/err" || fail "says nothing"
    xdotool getwindowgeometry "$window" | grep -q "Geometry: 320x240" || fail "not a window of the size asked for"
    escape
    ;;
no_display)
    env -u DISPLAY "$program" >"$work/out" 2>"$work/err"
    same $? 1 "another status than 1"
    same "$(wc -l <"$work/err")" 1 "not one line on standard error"
    same "$(wc -c <"$work/out")" 0 "something on standard output"
    ;;
options) # answered without a display
    env -u DISPLAY "$program" -w --help >"$work/out" 2>"$work/err"
    same $? 0 "status of --help"
    same "$(head -n 1 "$work/out")" "$title" "first line of the help text"
    for bad in -foo -limit -width; do
        env -u DISPLAY "$program" "$bad" >"$work/out" 2>>"$work/err"
        same $? 1 "status of $bad"
        same "$(wc -l <"$work/out")" 1 "not one line for $bad"
    done
    same "$(wc -c <"$work/err")" 0 "something on standard error"
    ;;
pause)
    start -magic
    moving || fail "the picture stands still before the pause"
    xdotool key p
    sleep 0.2
    moving && fail "the picture moves during the pause"
    xdotool key p
    moving || fail "the picture stands still after the pause"
    escape
    ;;
free_camera)
    start -magic
    xdotool key p
    sleep 0.3
    scene=$(picture a)
    xdotool key c
    sleep 0.2
    free=$(picture b)
    differs "$scene" "$free" "C changes nothing"
    xdotool key t keydown Left
    sleep 0.3
    xdotool keyup Left
    sleep 0.1
    differs "$free" "$(picture b)" "Left changes nothing"
    xdotool key c
    sleep 0.2
    same "$scene" "$(picture b)" "the scene's own camera has moved"
    escape
    ;;
movement_keys) # move nothing outside the free camera
    start -magic
    xdotool key p
    sleep 0.3
    scene=$(picture a)
    xdotool key t z a Up Down Right Left s f e d x v o r g l
    sleep 0.2
    same "$scene" "$(picture b)" "a key has changed the picture"
    escape
    ;;
keys_without_magic)
    start
    xdotool key p c t g o r l z a Up Down Right Left s f e d x v period comma
    sleep 0.2
    running "a key has ended it"
    moving || fail "P has paused the show"
    escape
    ;;
skip_scenes) # from the white first scene to the black fifth, and back to the white third
    start -magic
    white=$(steady_brightness)
    for _ in 1 2 3 4; do
        xdotool key period
        sleep 0.6 # longer than a beat
    done
    sleep 0.2
    black=$(steady_brightness)
    for _ in 1 2; do
        xdotool key comma
        sleep 0.6
    done
    third=$(steady_brightness)
    echo "brightness: $white, $black, $third percent"
    [ "$white" -gt 50 ] && [ "$black" -lt 50 ] && [ "$third" -gt 50 ] || fail "not the scenes expected"
    escape
    ;;
resize)
    start
    for size in "500 400" "64 48" "700 300"; do
        xdotool windowsize "$window" $size
        sleep 0.3
        running "resized to $size"
    done
    # The picture fills the window: its lower right corner is the first scene's white wall.
    corner=$(import -silent -window "$window" -crop 20x20+670+270 -colorspace gray -format '%[fx:round(100*mean)]' info:-)
    [ "$corner" -gt 90 ] || fail "the corner of the resized window is not drawn: $corner percent"
    escape
    ;;
no_sound)
    # Two seconds at 30 frames a second, with and without the player.
    ticks() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
    share() {
        launch -w -width 320 -novsync -limit 30 "$@"
        local before
        before=$(ticks)
        sleep 2
        used=$(($(ticks) - before))
        size=$(wc -c <"$work/err")
        escape
    }
    export ALSOFT_DRIVERS=none
    share -mute
    mute=$used
    share
    echo "processor time in 2 s: $used ticks, muted $mute; standard error: $size bytes"
    [ "$used" -le $((2 * mute + 20)) ] || fail "the silent player is busy"
    [ "$size" -lt 4096 ] || fail "standard error is flooded"
    ;;
display_lost)
    start
    kill "$server"
    server=
    finish "$(now_ms)" 1
    grep -q "^The display is lost.$" "$work/err" || fail "says nothing"
    ;;
*)
    fail "no such case: $1"
    ;;
esac
echo "passed: $1"
