# SPDX-License-Identifier: MIT
# Sourced by the scripts that run a test in a session of its own: a folder for what the session
# leaves, and processes that end with the script.
folder=$(mktemp -d)
processes=()
clean_up() {
    local process
    for process in "${processes[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    # A compositor that is busy with its end must not hold up the test.
    wait_until 10 have_ended || kill -KILL "${processes[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap clean_up EXIT
have_ended() { [ -z "$(jobs -pr)" ]; }

# Waits until the command succeeds: wait_until SECONDS COMMAND…
wait_until() {
    local attempts=$(($1 * 20))
    shift
    while ! "$@"; do
        [ $((attempts -= 1)) -gt 0 ] || return 1
        sleep 0.05
    done
}
give_up() {
    echo "$(basename "$0"): $1" >&2
    cat "$folder"/*.log >&2
    exit 1
}
