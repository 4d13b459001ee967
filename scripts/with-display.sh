# Runs a command on the display at hand, or on a virtual one that lives as long as the command; sourced by run.sh and
# test.sh. The function returns the command's exit status.

# Whether there is an X display that responds; X is the only kind that the simulator is installed for.
has_display() {
    [[ -n "${DISPLAY:-}" ]] && setxkbmap -display "$DISPLAY" -query >/dev/null 2>&1
}

# Whether the terminal simulator, started with these arguments, waits for somebody to use it.
needs_operator() {
    local argument
    for argument in "$@"; do
        case "$argument" in
        --describe | --describe=* | --at | --at=* | --check | --drive | --drive=*) return 1 ;;
        --screenshot | --screenshot=* | --script | --script=* | --help | -h) return 1 ;;
        esac
    done
}

# Stops what with_virtual_display has started; uses its variables.
stop_virtual_display() {
    trap - INT TERM
    kill ${client:+"$client"} "$server" 2>/dev/null || true
    wait ${client:+"$client"} "$server" 2>/dev/null || true
    rm -f "$announced"
}

with_virtual_display() {
    local announced server client="" status=0
    announced="$(mktemp)"
    Xvfb -displayfd 3 -screen 0 1400x1000x24 -nolisten tcp -noreset 3>"$announced" >/dev/null 2>&1 &
    server=$!
    trap 'stop_virtual_display; kill -INT $$' INT
    trap 'stop_virtual_display; kill -TERM $$' TERM
    while [[ ! -s "$announced" ]] && kill -0 "$server" 2>/dev/null; do sleep 0.05; done
    if [[ -s "$announced" ]]; then
        # In the background, so that a signal is handled at once; its standard input is passed on, since it would be
        # lost.
        env -u WAYLAND_DISPLAY DISPLAY=":$(<"$announced")" QT_QPA_PLATFORM=xcb "$@" <&0 &
        client=$!
        wait "$client" || status=$?
        client=""
    else
        echo "the virtual display did not start" >&2
        status=1
    fi
    stop_virtual_display
    return "$status"
}

with_display() {
    if has_display; then "$@"; else with_virtual_display "$@"; fi
}
