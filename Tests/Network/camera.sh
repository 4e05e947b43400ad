# shellcheck shell=bash
# Sourced by the tests that run other programs with simulated cameras. Their first argument is qdv12sim. Run them with
# on-loopback-alone, because the programs broadcast.
set -euo pipefail

sim=$1
folder=$(mktemp -d)
camera=
trap '[ -z "$camera" ] || kill "$camera"; rm -rf "$folder"' EXIT

fail() { echo "$*"; exit 1; }

# needs PROGRAM...: exits with 77 (skipped) if one of them is not installed.
needs() {
    for program in "$@"; do
        command -v "$program" >/dev/null || { echo "skipped: $program is not installed"; exit 77; }
    done
}

# switch_on MODEL [OPTION...]: starts a camera.
switch_on() {
    rm -f "$folder/says"
    "$sim" "$@" --address 192.168.1.10 >"$folder/says" &
    camera=$!
    for _ in $(seq 100); do
        ! grep -q '192.168.1.10:3956' "$folder/says" || return 0
        sleep 0.1
    done
    fail "$1 did not start: $(cat "$folder/says")"
}

# switch_off: the camera exits with success.
switch_off() {
    kill "$camera"
    wait "$camera" || fail "the simulated camera exited with $?"
    camera=
}

# arv ARGUMENT...: runs arv-tool on the camera's address, without discovery.
arv() { timeout 60 arv-tool-0.8 --address 192.168.1.10 "$@"; }

# expect LINE COMMAND...: the output must contain the line, ignoring blanks around it. It is read to its end, or its
# writer would fail.
expect() {
    local line=$1 printed
    shift
    printed=$("$@" 2>&1) || fail "$* exited with $?: $printed"
    sed 's/^ *//; s/ *$//' <<<"$printed" | grep -Fx -- "$line" >/dev/null || fail "$*: expected \"$line\" in: $printed"
}

# none DISPLAY_FILTER [OPTION...]: no packet of the record matches.
none() {
    local filter=$1 found
    shift
    found=$(tshark -2 -r "$folder/record.pcap" -o ip.check_checksum:TRUE -o udp.check_checksum:TRUE -Y "$filter" "$@" \
        2>"$folder/tshark") || fail "tshark exited with $?: $(cat "$folder/tshark")"
    [ -z "$found" ] || fail "tshark finds packets with $filter: $(head -5 <<<"$found")"
}
