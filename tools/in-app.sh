#!/usr/bin/env bash
# Installs the plug-in as a printer in the Wine prefix and uses it from the system's text editor.
# Called by "./run --in-app", and works by itself:
#
#   tools/in-app.sh [--product P] [--shots DIR]
#
# Ends 0 when paper and sides went from our sheet into the program's own settings and back, and all
# stories that play in the text editor went well (tests/stories).
set -u
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

product=office-c430
shots=()
while [ $# -gt 0 ]; do
    case $1 in
    --product | --shots) [ $# -ge 2 ] && [ -n "$2" ] || o7_die "$1 needs a value" 2 ;;
    esac
    case $1 in
    --product) product=$2 ;;
    --shots)
        mkdir -p -- "$2" || o7_die "cannot make the folder $2" 2
        shots=(--shots "$(o7_winpath "$2")")
        ;;
    *) o7_die "--in-app knows --product and --shots only, not \"$1\"" 2 ;;
    esac
    shift 2
done

if [ -n "${O7_LOCK_FD:-}" ]; then
    # The caller has built everything, and holds display, prefix and server.
    o7_wine_env
else
    o7_need "${O7_PACKAGES_BUILD[@]}" "${O7_PACKAGES_WINE[@]}"
    o7_build windows products/all plugin/all preview/all || exit 1
    o7_wine_begin virtual
fi

bin=$O7_ROOT/build/windows/bin
[ -f "$bin/products/$product/package.json" ] ||
    o7_die "there is no product \"$product\"; there are: $(cd "$bin/products" && echo *)" 2
# Menus and lists are found by their texts, so the language of the desktop has to be known.
export LC_ALL=C.UTF-8
o7_wine "$bin/o7drive.exe" "$product" ${shots[@]+"${shots[@]}"} ||
    o7_die "the sheet in the print dialog did not do what it must"
stories=()
for story in "$O7_ROOT"/tests/stories/in-app-*.story; do
    stories+=("$(o7_winpath "$story")")
done
o7_wine "$bin/o7preview.exe" --story "${stories[@]}"
