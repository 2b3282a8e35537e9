# What the scripts share. Source it; it moves to the root of the source tree. Messages go to standard error, so that
# standard output holds nothing but data.

source_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$source_root"
logs="$source_root/build/logs"

say() {
    printf 'Karvello: %s\n' "$*" >&2
}

fail() {
    say "$*"
    exit 1
}

# quietly NAME COMMAND...: keeps the output in build/logs/NAME.log and shows it only if the command fails.
quietly() {
    local log="$logs/$1.log" status=0
    shift
    mkdir -p "$logs"
    "$@" </dev/null >"$log" 2>&1 || status=$?
    if [ $status != 0 ]; then
        tail -n 150 "$log" >&2
        say "failed: $* (all of its output: $log)"
    fi
    return $status
}

# configure PRESET OPTION...: prepares build/PRESET once; from then on the build keeps itself up to date.
configure() {
    local preset=$1
    shift
    if [ ! -e "build/$preset/build.ninja" ] || [ $# -gt 0 ]; then
        quietly "configure-$preset" cmake --preset "$preset" "$@"
    fi
}

# build PRESET TARGET...: without a target everything.
build() {
    local preset=$1
    shift
    quietly "build-$preset" cmake --build --preset "$preset" ${1:+--target "$@"}
}
