# What the scripts of this folder share. It is sourced, and leaves the shell in the top of the tree.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$top"
jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '%s\n' "$@"; } # one line an argument
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# need GROUP...: installs the packages of these groups that are not there.
need() {
    command -v dpkg-query >/dev/null || {
        say "No Debian here; the packages of scripts/packages must be there already."
        return 0
    }
    local wanted missing=() package
    wanted=$(awk -v groups=" $* " '!/^#/ && NF == 2 && index(groups, " " $1 " ") {print $2}' \
        scripts/packages | sort -u)
    for package in $wanted; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing: ${missing[*]}"
    local root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || fail "please install as root: apt-get install ${missing[*]}"
        root=(sudo)
    fi
    # A package list that is out of date in part is no reason to stop; the install tells.
    "${root[@]}" apt-get update -qq || true
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${missing[@]}" >/dev/null ||
        fail "could not install: ${missing[*]}"
}

# build PRESET [TARGET...]: build/PRESET is configured and brought up to date.
build() {
    local preset=$1
    shift
    cmake --preset "$preset" >/dev/null
    cmake --build "build/$preset" --parallel "$jobs" ${1:+--target "$@"}
}

# start_screen WIDTHxHEIGHT: a display of our own, on the first free number; DISPLAY is set.
start_screen() {
    local number tries
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp 3>"$number" >/dev/null 2>&1 &
    screen_pid=$!
    for ((tries = 0; tries < 100; tries++)); do
        [ -s "$number" ] && break
        sleep 0.1
    done
    [ -s "$number" ] || fail "Xvfb gave no display"
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm -f "$number"
}
stop_screen() {
    [ -z "${screen_pid:-}" ] || kill "$screen_pid" 2>/dev/null || true
}
