# Sourced by the screenshot scripts: a fresh work folder, a HiSLIP-only
# simulator started from $build, its port in $port; both go away on exit.
work="$(mktemp -d)"
sim_pid=""
cleanup() {
    # The simulator's end by TERM is no failure of the script that sourced this.
    if [ -n "$sim_pid" ]; then
        kill "$sim_pid" 2>/dev/null || true
        wait "$sim_pid" 2>/dev/null || true
    fi
    rm -rf "$work"
}
trap cleanup EXIT

"$build/sim/kv7200b-sim" --hislip-port 0 --socket-port off --vxi11-port off --portmapper-port off --pty off \
    >"$work/sim.out" &
sim_pid=$!
for _ in $(seq 100); do
    grep -qsx ready "$work/sim.out" && break
    sleep 0.1
done
grep -qx ready "$work/sim.out" || { echo "kv7200b-sim did not start" >&2; exit 1; }
port="$(awk '$1 == "hislip" { print $3 }' "$work/sim.out")"
