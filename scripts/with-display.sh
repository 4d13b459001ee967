# Runs a command on the display at hand, or on a virtual one that lives as long as the command; sourced by run.sh and
# test.sh. The command's exit status is the function's.

has_display() {
    [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]
}

with_virtual_display() {
    local announced server status=0
    announced="$(mktemp)"
    Xvfb -displayfd 3 -screen 0 1400x1000x24 -nolisten tcp 3>"$announced" >/dev/null 2>&1 &
    server=$!
    while [[ ! -s "$announced" ]] && kill -0 "$server" 2>/dev/null; do sleep 0.05; done
    if [[ -s "$announced" ]]; then
        env -u WAYLAND_DISPLAY DISPLAY=":$(<"$announced")" QT_QPA_PLATFORM=xcb "$@" || status=$?
    else
        echo "the virtual display did not start" >&2
        status=1
    fi
    kill "$server" 2>/dev/null || true
    wait "$server" 2>/dev/null || true
    rm -f "$announced"
    return "$status"
}

with_display() {
    if has_display; then "$@"; else with_virtual_display "$@"; fi
}
