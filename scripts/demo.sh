#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Starts the program on a virtual display, picks every entry of its Quick Links menu by keyboard, and says what opened.
# Usage: scripts/demo.sh PROGRAM DATA_FOLDER [ARGUMENTS OF PROGRAM]; scripts/run.sh calls it.
# A recording xdg-open comes first in PATH, so no browser or mail program starts. Applications of links do start, on the
# virtual display, and end with it. Screenshots: build/run/screenshots

source "$(dirname "$0")/common.sh"

patience=30 # seconds for each thing to happen
screenshots=build/run/screenshots
log=build/run/demo.log
scratch=$(mktemp -d)
opened=$scratch/opened
started=()

cleanup() {
    local i
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do
        kill "${started[i]}" 2>/dev/null || true
        wait "${started[i]}" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap cleanup EXIT

start_display() {
    Xvfb -displayfd 3 -noreset -screen 0 1024x768x24 -nolisten tcp 3>"$scratch/display" 2>"$scratch/xvfb.log" &
    started+=($!)
    wait_until "$patience" test -s "$scratch/display" || fail "the virtual display did not start"
    DISPLAY=:$(<"$scratch/display")
    export DISPLAY
    openbox --sm-disable >"$scratch/openbox.log" 2>&1 &
    started+=($!)
    wait_until "$patience" xdotool get_desktop || fail "the window manager did not start"
}

# What the program hands to the desktop goes into the file "opened", one line a call.
record_desktop() {
    mkdir "$scratch/bin" "$scratch/home"
    printf '#!/bin/sh\nprintf "%%s\\n" "$*" >>"%s"\n' "$opened" >"$scratch/bin/xdg-open"
    chmod +x "$scratch/bin/xdg-open"
    : >"$opened"
}

start_program() {
    unset WAYLAND_DISPLAY
    HOME=$scratch/home QT_QPA_PLATFORM=xcb PATH=$scratch/bin:$PATH "$@" >"$log" 2>&1 </dev/null &
    program=$!
    started+=("$program")
    wait_until "$patience" window_is_there_or_program_gone || true
    window_is_there || stuck "the program showed no window"
    window=$(windows)
    say "Started the program: window \"$(title "$window")\""
    focus "$window"
    screenshot main-window
}

# stuck TEXT: the end of the demonstration, with what the program said.
stuck() {
    cat "$log" >&2
    fail "$1"
}

# The visible windows, menus included, sorted for comm.
windows() {
    xdotool search --onlyvisible --class . 2>/dev/null | sort
}

new_windows() {
    comm -13 <(printf '%s\n' "$windows_before") <(windows)
}

window_is_there() {
    [[ -n $(windows) ]]
}

window_is_there_or_program_gone() {
    window_is_there || ! kill -0 "$program"
}

new_window_is_there() {
    [[ -n $(new_windows) ]]
}

is_gone() {
    ! windows | grep -qx "$1"
}

is_focused() {
    [[ $(xdotool getactivewindow) == "$1" ]]
}

is_of_program() {
    [[ $(xdotool getwindowpid "$1" 2>&1) == "$program" ]]
}

title() {
    xdotool getwindowname "$1"
}

# Keys go to the window that has the focus.
focus() {
    xdotool windowactivate "$1"
    wait_until "$patience" is_focused "$1" || stuck "the window \"$(title "$1")\" does not get the focus"
}

# screenshot NAME: the whole display, when it has come to rest.
screenshot() {
    local last=none now
    for _ in {1..50}; do
        import -silent -window root "$screenshots/$1.png"
        now=$(identify -format '%#' "$screenshots/$1.png")
        [[ $now == "$last" ]] && return
        last=$now
    done
    stuck "the display does not come to rest for the screenshot \"$1\""
}

# attribute NAME ITEM: the value of an attribute of one item of config.xml.
attribute() {
    sed -E "s/.* $1=\"([^\"]*)\".*/\1/; s/&quot;/\"/g; s/&lt;/</g; s/&gt;/>/g; s/&amp;/\&/g" <<<"$2"
}

calls() {
    wc -l <"$opened"
}

something_opened() {
    (($(calls) > calls_before)) || new_window_is_there
}

# pick INDEX ITEM: picks an entry (from 0) of the Quick Links menu by keyboard and says what opened.
pick() {
    local index=$1 name type url menu new i
    name=$(attribute name "$2") type=$(attribute type "$2") url=$(attribute url "$2")
    windows_before=$(windows)
    calls_before=$(calls)
    xdotool key alt+q
    wait_until "$patience" new_window_is_there || stuck "the Quick Links menu did not open"
    menu=$(new_windows)
    xdotool key Home
    for ((i = 0; i < index; ++i)); do
        xdotool key Down
    done
    ((index > 0)) || screenshot quick-links-menu
    xdotool key Return
    wait_until "$patience" is_gone "$menu" || stuck "the menu stayed open at \"$name\""
    wait_until "$patience" something_opened || stuck "picking \"$name\" opened nothing"

    new=$(new_windows | head -n 1)
    if [[ -z $new ]]; then
        say "Picked \"$name\": xdg-open was called with $(tail -n 1 "$opened")"
    elif ! is_of_program "$new"; then
        screenshot "application-$index"
        say "Picked \"$name\": $url was started, window \"$(title "$new")\""
        xdotool windowkill "$new"
    elif [[ $type == *APPLICATION && ! -e $url ]]; then
        screenshot "message-$index"
        say "Picked \"$name\": a message says that $url cannot be opened"
        focus "$new"
        xdotool key Escape
    else
        screenshot "message-$index"
        stuck "picking \"$name\" showed a message and did not open $url"
    fi
    [[ -z $new ]] || wait_until "$patience" is_gone "$new" || stuck "the window \"$(title "$new")\" does not close"
    focus "$window"
}

close_program() {
    xdotool key alt+F4
    wait_until "$patience" is_gone "$window" || stuck "the window does not close"
    wait "$program" || stuck "the program ended with exit code $?"
    say "Closed the window; the program ended"
}

program_file=$1
data=$2
shift 2
mapfile -t items < <(grep '<item .*visible="1"' "$data/plugins/QuickLinkUIPlugin/config.xml")
mkdir -p "$screenshots"
rm -f "$screenshots"/*.png
start_display
record_desktop
start_program "$program_file" --data-dir "$data" "$@"
for index in "${!items[@]}"; do
    pick "$index" "${items[index]}"
done
close_program
say "Screenshots: $screenshots/*.png"
