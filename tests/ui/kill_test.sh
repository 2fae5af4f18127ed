#!/usr/bin/env bash
# kill_test.sh KAVRO: kills the window in the middle of unsaved work, on a display of its own, and
# starts it again: the changes are offered and come back.
set -euo pipefail
kavro=$1
folder=$(mktemp -d)
trap 'kill -9 ${program:-} ${screen:-} 2>/dev/null || true; rm -rf "$folder" || true' EXIT

until_true() { # COMMAND...: waits for it, a minute at most
    local tries
    for ((tries = 0; tries < 600; tries++)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    echo "waited in vain for: $*" >&2
    kill -0 "${program:-none}" 2>/dev/null && echo "the program runs" || echo "the program has ended"
    cat "$folder/log"
    return 1
}
window() { xdotool search --onlyvisible --name "$1"; }

Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset 3>"$folder/display" >>"$folder/log" 2>&1 &
screen=$!
disown
until_true test -s "$folder/display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
# libxkbcommon-x11 copies the names of a keymap, which nothing ends in the server's answer, with
# strndup: right, and a fault to a sanitizer that measures whole strings.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}strict_string_checks=0

printf '1\r\n00:00:01,000 --> 00:00:02,000\r\nOne\r\n\r\n' >"$folder/film.srt"
"$kavro" --app-dir "$folder/app" "$folder/film.srt" 2>>"$folder/log" &
program=$!
disown
until_true window 'film.srt'
xdotool windowfocus --sync "$(window 'film.srt' | head -n 1)"
xdotool type 'Typed'
xdotool key Return
until_true window 'film.srt\*'
until_true ls "$folder"/app/System/Recovery/1.rec
kill -9 "$program"
until_true bash -c "! kill -0 $program"

"$kavro" --app-dir "$folder/app" "$folder/film.srt" 2>>"$folder/log" &
program=$!
disown
until_true window 'Unsaved changes'
xdotool windowfocus --sync "$(window 'Unsaved changes' | head -n 1)"
xdotool key Return
until_true window 'film.srt\*'
grep -q One "$folder/film.srt"
