#!/usr/bin/env bash
# Installs what is missing, builds into build/, and starts the program beside a
# simulated instrument on loopback (Tools > Connect finds it). The simulator stops
# when the program does.
#   ./run.sh             program and simulator
#   ./run.sh --no-sim    the program alone
# Other arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/common.sh

use_sim=1
args=()
for a in "$@"; do
    if [ "$a" = "--no-sim" ]; then use_sim=0; else args+=("$a"); fi
done

selvane_install
selvane_build build

if [ "$use_sim" -eq 0 ]; then
    exec build/src/selvane "${args[@]}"
fi

sim_out="$(mktemp)"
sim_pid=""
stop_sim() {
    [ -n "$sim_pid" ] && kill "$sim_pid" 2>/dev/null && wait "$sim_pid" 2>/dev/null
    rm -f "$sim_out"
}
trap stop_sim EXIT
trap 'exit 130' INT TERM

# HiSLIP on a free port; the other transports are not needed.
build/sim/kv7200b-sim --hislip-port 0 --socket-port off --vxi11-port off --portmapper-port off --pty off \
    >"$sim_out" &
sim_pid=$!

# Wait for the simulator's start-up lines ("hislip 127.0.0.1 PORT", then "ready").
for _ in $(seq 100); do
    grep -qx ready "$sim_out" && break
    kill -0 "$sim_pid" 2>/dev/null || { echo "kv7200b-sim did not start" >&2; exit 1; }
    sleep 0.1
done
grep -qx ready "$sim_out" || { echo "kv7200b-sim is not ready" >&2; exit 1; }
hislip_port="$(awk '$1 == "hislip" { print $3 }' "$sim_out")"
echo "kv7200b-sim: HiSLIP on 127.0.0.1:$hislip_port"

export SELVANE_VISA="${SELVANE_VISA:-builtin}"
export SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${hislip_port}::INSTR"
build/src/selvane "${args[@]}"
