# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What ./run, ./test and ./bench share: getting a machine ready and building. Sourced from the top folder. Everything
# said here goes to standard error: standard output belongs to the program that is run afterwards.

say() { printf '%s\n' "$*" >&2; }

# Runs a command without its output, which is shown only when it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if ((status != 0)); then
        cat -- "$log" >&2
        say "Failed (exit $status): $*"
    fi
    rm -f -- "$log"
    return "$status"
}

# wanted_packages LIST...: the names in the lists, one a line.
wanted_packages() {
    local list
    for list in "$@"; do
        sed -e 's/#.*//' -e 's/^[[:space:]]*//' -e 's/[[:space:]].*//' -e '/^$/d' "packages/$list.txt"
    done | sort -u
}

# missing_packages LIST...: those of them that are not installed. One dpkg-query answers for all.
missing_packages() {
    local -a wanted
    mapfile -t wanted < <(wanted_packages "$@")
    # It exits 1 when a package is unknown to it, which is an answer here. Of foreign architectures none counts.
    comm -23 <(printf '%s\n' "${wanted[@]}") \
        <(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# A package system run that never asks. It waits for another one that is under way.
apt_command=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)

# Installs what is missing of the lists. Says what and why first; without the right to, says the exact command.
ensure_packages() {
    local -a missing
    local -a as_root=()
    local name list
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian system: what packages/*.txt name has to be installed by hand."
        return 0
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0

    say "These Debian packages are missing:"
    for name in "${missing[@]}"; do
        for list in "$@"; do
            awk -v name="$name" '$1 == name' "packages/$list.txt"
        done | sed -n '1s/^/  /p' >&2
    done
    if [[ $(id -u) != 0 ]]; then
        # Without a terminal nobody could type a password.
        if ! command -v sudo >/dev/null || { [[ ! -t 0 ]] && ! sudo -n true 2>/dev/null; }; then
            say "Installing them takes an administrator. Please run, then start this again:"
            say "  apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
            exit 1
        fi
        as_root=(sudo)
    fi
    install_packages "${missing[@]}"
    say "Installed."
}

# The lists of what there is are fetched only when a package is not in them, or what they name is no longer there.
install_packages() {
    local -a install=("${as_root[@]}" "${apt_command[@]}" install -y --no-install-recommends "$@")
    if "${apt_command[@]}" install --simulate "$@" >/dev/null 2>&1 </dev/null; then
        say "Installing them…"
        "${install[@]}" >/dev/null 2>&1 </dev/null && return 0
    fi
    say "Fetching the lists of packages…"
    quietly "${as_root[@]}" "${apt_command[@]}" update || exit 1
    say "Installing them…"
    quietly "${install[@]}" || exit 1
}

# Fetches the symbol font at its pinned version; npm compares it with the digest in the lock file. A copy of one's own
# is named with cmake's -DBRISKO_SYMBOL_FONT= instead.
ensure_symbols() {
    local font=symbols/node_modules/framework7-icons/fonts/Framework7Icons-Regular.ttf
    [[ ! -e $font || symbols/package-lock.json -nt $font ]] || return 0
    command -v npm >/dev/null || ensure_packages symbols
    say "Fetching the symbol font…"
    quietly npm ci --prefix symbols --ignore-scripts --no-audit --no-fund || exit 1
    touch -- "$font"
}

# build PRESET [TARGET...]: configures when needed, then builds, one build of a checkout at a time.
build() {
    local preset=$1
    shift
    local folder=build/$preset
    local -a targets=()
    (($# == 0)) || targets=(--target "$@")
    ensure_symbols
    mkdir -p "$folder"
    exec {lock}>"$folder/.lock"
    if ! flock -n "$lock"; then
        say "Waiting for another build of the preset $preset…"
        flock "$lock"
    fi
    if [[ ! -e $folder/build.ninja || CMakePresets.json -nt $folder/build.ninja ]]; then
        say "Configuring the preset $preset…"
        quietly cmake --preset "$preset" || exit 1
    fi
    # Asking first keeps a start that has nothing to build silent.
    if ! ninja -C "$folder" -n "$@" 2>/dev/null | grep -q 'no work to do'; then
        say "Building the preset $preset (the first time takes minutes)…"
        quietly cmake --build --preset "$preset" "${targets[@]}" || exit 1
    fi
    exec {lock}>&-
}
