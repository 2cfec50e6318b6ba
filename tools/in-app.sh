#!/usr/bin/env bash
# Installs the plug-in as a printer in the Wine prefix and uses it from the system's text editor.
# Usage: tools/in-app.sh [--product P] [--shots DIR]. Ends 0 when a change made with OK was there
# again at the next opening and a change made with Cancel was not.
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

product=office-c430
shots=()
while [ $# -gt 0 ]; do
    case $1 in
    --in-app) shift ;;
    --product | --shots)
        [ $# -gt 1 ] || o7_die "$1 needs a value" 2
        if [ "$1" = --product ]; then
            product=$2
        else
            mkdir -p "$2" || o7_die "the folder $2 cannot be made" 2
            shots=(--shots "$(o7_winpath "$2")")
        fi
        shift 2
        ;;
    *) o7_die "unknown option $1; with --in-app there are --product and --shots" 2 ;;
    esac
done

o7_need "${O7_PACKAGES_BUILD[@]}" "${O7_PACKAGES_WINE[@]}"
o7_build windows || exit 1
bin=$O7_ROOT/build/windows/bin
[ -f "$bin/products/$product/package.json" ] ||
    o7_die "there is no product $product; there are: $(ls "$bin/products" | xargs)" 2

trap o7_at_end EXIT
# Always a display of our own: the keyboard and the mouse are used.
o7_display_start
o7_wine_prefix
o7_wine "$bin/o7install.exe" "$(o7_winpath "$bin")" --product "$product" ||
    o7_die "the printer could not be installed"
o7_wine "$bin/o7drive.exe" "$(o7_winpath "$bin/products/$product/strings-en.dll")" "${shots[@]}" ||
    o7_die "the sheet in the text editor's print dialog did not do what it must"
