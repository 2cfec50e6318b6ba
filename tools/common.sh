# shellcheck shell=bash disable=SC2034
# Shell functions shared by run, test, bench and the scripts beside this file. Sourced, not run.
# The caller gets O7_ROOT and the functions below; after o7_wine_begin also WINEPREFIX, DISPLAY,
# O7_WINE and O7_WINESERVER, exported for what it starts.

O7_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export O7_ROOT

o7_say() { printf '%s\n' "$*" >&2; }
o7_die() {
    o7_say "${0##*/}: $1"
    exit "${2:-1}"
}

# --- packages -------------------------------------------------------------------------------

# The last one compiles the help files of the products.
O7_PACKAGES_BUILD=(cmake ninja-build g++ g++-mingw-w64-x86-64 googletest nlohmann-json3-dev
    fp-utils-3.2.2)
# The fonts decide how wide texts are: without them a display shows other ones, or none. The last two
# have the Japanese and the Arabic letters.
O7_PACKAGES_WINE=(wine64 wine xvfb fonts-liberation fonts-vlgothic fonts-dejavu-core)
O7_PACKAGES_TEST=(clang-format clang-tidy shellcheck python3 git)
O7_PACKAGES_APP=(xdotool imagemagick)

# o7_need PACKAGE...: installs those that are missing, and says so. Asks nothing.
o7_need() {
    local missing=() package root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" = "install ok installed" ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null ||
        o7_die "these packages are missing and there is no apt-get to install them: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            o7_die "these packages are missing; run as root or install them: ${missing[*]}"
        root=(sudo)
    fi
    o7_say "installing: ${missing[*]}"
    local apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y)
    # The package lists of this machine may be old or absent: one update, only when needed.
    "${apt[@]}" install --no-install-recommends "${missing[@]}" >/dev/null 2>&1 && return 0
    "${apt[@]}" update >/dev/null || o7_die "the package lists cannot be updated"
    "${apt[@]}" install --no-install-recommends "${missing[@]}" >/dev/null ||
        o7_die "cannot install: ${missing[*]}"
}

# --- building -------------------------------------------------------------------------------

O7_JOBS=${O7_JOBS:-$(nproc)}

# o7_build PRESET [TARGET...]: configures when that was never done, then builds. Quiet when it goes
# well; everything goes to build/PRESET.log, whose end is shown when it does not.
o7_build() {
    local preset=$1 log
    shift
    mkdir -p "$O7_ROOT/build"
    log=$O7_ROOT/build/$preset.log
    if ! {
        { [ -f "$O7_ROOT/build/$preset/build.ninja" ] ||
            cmake -S "$O7_ROOT" --preset "$preset"; } &&
            cmake --build "$O7_ROOT/build/$preset" -j "$O7_JOBS" ${1:+--target "$@"}
    } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        o7_say "building $preset failed; all of it: build/$preset.log"
        return 1
    fi
}

# --- Wine -----------------------------------------------------------------------------------

O7_PREFIXES=() # those whose servers run

# The 64-bit programs themselves: the distribution's wrapper complains about a missing 32-bit one.
o7_wine_find() {
    local folder
    for folder in /usr/lib/wine /usr/lib/x86_64-linux-gnu/wine /opt/wine-stable/bin /usr/bin; do
        if [ -x "$folder/wine64" ]; then
            O7_WINE=$folder/wine64
            O7_WINESERVER=$folder/wineserver64
            [ -x "$O7_WINESERVER" ] || O7_WINESERVER=$folder/wineserver
            [ -x "$O7_WINESERVER" ] || O7_WINESERVER=$(command -v wineserver)
            return 0
        fi
    done
    o7_die "wine64 is not installed"
}

# Everything Wine needs to know, once per shell. A prefix of this tree, never the user's own.
o7_wine_env() {
    o7_wine_find
    export O7_WINE O7_WINESERVER
    export WINEPREFIX=${O7_WINEPREFIX:-$O7_ROOT/build/wineprefix}
    export WINEARCH=win64 WINEDEBUG=${O7_WINEDEBUG:--all} 
    # No .NET, no browser, and no entries in the start menu of whoever runs this.
    export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
    export WINESERVER=$O7_WINESERVER
    unset WINELOADER
}

# In the background and waited for: a signal to the script then ends the script, whose end stops the
# program.
o7_wine() {
    "$O7_WINE" "$@" <&0 &
    wait $!
}

# o7_reg KEY NAME TYPE DATA: sets one registry value in the prefix.
o7_reg() { o7_wine reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null; }

# o7_wine_lock: one at a time in this prefix, since the one that ends stops its server.
o7_wine_lock() {
    mkdir -p "$O7_ROOT/build"
    exec {O7_LOCK_FD}>"$O7_ROOT/build/wine.lock"
    export O7_LOCK_FD
    flock -n "$O7_LOCK_FD" && return 0
    o7_say "waiting for another command of this tree to end"
    flock "$O7_LOCK_FD"
}

# Makes the prefix when it is not there yet (about ten seconds; needs the display).
o7_wine_prefix() {
    o7_wine_env
    local mark=$WINEPREFIX/.o7-ready
    [ -f "$mark" ] && return 0
    mkdir -p "$WINEPREFIX"
    o7_say "making a Wine prefix in ${WINEPREFIX#"$O7_ROOT"/}"
    o7_wine wineboot -i >/dev/null 2>&1 || o7_die "wineboot failed in $WINEPREFIX"
    # A crash ends the program instead of waiting for someone to close a dialog.
    o7_reg 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
    # A stopped server has written the registry to disk.
    o7_wine_stop "$WINEPREFIX"
    : >"$mark"
}

# o7_wine_managed Y|N: whether a window manager decides about Wine's windows. On a virtual display
# there is none, and waiting for its answers makes every window late.
o7_wine_managed() {
    local mark=$WINEPREFIX/.o7-managed
    [ "$(cat "$mark" 2>/dev/null)" = "$1" ] && return 0
    o7_reg 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ "$1"
    printf '%s\n' "$1" >"$mark"
}

# o7_wine_letters LANGUAGE: lets other fonts help where the one of the pages has no letters. Latin
# texts look and measure as before, except beside Arabic: only the first font's letters are joined.
o7_wine_letters() {
    local mark=$WINEPREFIX/.o7-letters first=latin
    local links='HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink'
    [ "$1" != ar ] || first=arabic
    [ "$(cat "$mark" 2>/dev/null)" = $first ] && return 0
    o7_reg "$links" 'Liberation Sans' REG_MULTI_SZ 'VL-PGothic-Regular.ttf,VL PGothic'
    if [ $first = arabic ]; then
        o7_reg "$links" Tahoma REG_MULTI_SZ 'DejaVuSans.ttf,DejaVu Sans'
    else
        o7_wine reg delete "$links" /v Tahoma /f >/dev/null 2>&1
    fi
    printf '%s\n' $first >"$mark"
}

# o7_wine_begin virtual|real [LANGUAGE]: lock, display, prefix, letters, and a server that stays for
# the next program. The caller's end undoes it all.
o7_wine_begin() {
    o7_wine_find
    o7_wine_lock
    trap o7_wine_end EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    o7_wine_start "$@"
}

# o7_wine_start virtual|real [LANGUAGE]: display, prefix and server of o7_wine_begin.
o7_wine_start() {
    [ "$1" = real ] || o7_display_start
    o7_wine_prefix
    O7_PREFIXES+=("$WINEPREFIX")
    # Wine's services start with the first program and keep its output open: let that be nobody's.
    "$O7_WINESERVER" -p60 >/dev/null 2>&1
    o7_wine cmd /c exit >/dev/null 2>&1 </dev/null
    if [ "$1" = real ]; then o7_wine_managed Y; else o7_wine_managed N; fi
    o7_wine_letters "${2:-}"
}

# o7_wine_lanes COUNT FILE: after o7_wine_begin virtual, COUNT displays in all, each with a prefix of
# its own, so that programs which need pointer and focus for themselves can run side by side. FILE
# gets what CTest has to know to give a test one of them (tools/wine-run takes it from there).
o7_wine_lanes() {
    local lane
    local -a rows=()
    for ((lane = 1; lane <= $1; lane++)); do
        if [ "$lane" -gt 1 ]; then
            O7_WINEPREFIX=$O7_ROOT/build/wineprefix-$lane
            o7_wine_start virtual
        fi
        printf 'export WINEPREFIX=%q DISPLAY=%q\n' "$WINEPREFIX" "$DISPLAY" \
            >"$O7_ROOT/build/lane$lane.env"
        rows+=("{\"id\": \"lane$lane\"}")
    done
    printf '{"version": {"major": 1, "minor": 0}, "local": [{"displays": [%s]}]}\n' \
        "$(IFS=,; printf '%s' "${rows[*]}")" >"$2"
}

# What is left behind: nothing.
o7_wine_end() {
    o7_wine_stop
    o7_display_stop
}

# o7_wine_stop [PREFIX...]: asks the servers of these prefixes, or of all that were started, to end
# every program that is left, and waits.
o7_wine_stop() {
    local prefix
    [ -n "${O7_WINESERVER:-}" ] || return 0
    [ $# -gt 0 ] || set -- "${O7_PREFIXES[@]}" "${WINEPREFIX:-}"
    for prefix in "$@"; do
        [ -d "$prefix" ] || continue
        WINEPREFIX=$prefix "$O7_WINESERVER" -k >/dev/null 2>&1
        WINEPREFIX=$prefix "$O7_WINESERVER" -w >/dev/null 2>&1
    done
    return 0
}

# o7_winpath PATH: the Windows name of a path of this machine (Wine shows "/" as drive Z:).
o7_winpath() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s' "${path//\//\\}"
}

# --- display --------------------------------------------------------------------------------

O7_XVFB_PIDS=()

# o7_display_start: a virtual display of our own, on the first free number.
o7_display_start() {
    local number
    exec {O7_XVFB_FD}< <(
        # An orphan must not keep the lock.
        [ -z "${O7_LOCK_FD:-}" ] || exec {O7_LOCK_FD}>&-
        exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null
    )
    O7_XVFB_PIDS+=($!)
    read -r -t 30 -u "$O7_XVFB_FD" number || o7_die "the virtual display did not start"
    export DISPLAY=:$number
    unset XAUTHORITY WAYLAND_DISPLAY
}

o7_display_stop() {
    [ ${#O7_XVFB_PIDS[@]} -gt 0 ] || return 0
    kill "${O7_XVFB_PIDS[@]}" 2>/dev/null
    wait "${O7_XVFB_PIDS[@]}" 2>/dev/null
    O7_XVFB_PIDS=()
}
