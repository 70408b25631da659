#!/bin/sh
# Opens exported workbooks in LibreOffice Calc, compares what it finds in them with the sample
# application's file, and takes docs/pictures/workbook.png of one of them. Wants the packages
# libreoffice-calc, imagemagick, xdotool and xvfb, and the workbooks of a tour.
#
#   scripts/open_in_calc.sh TOUR_FOLDER        build/tour after ./run.sh without a display
set -eu
tour="$(realpath "$1")"
cd "$(dirname "$0")/.."
application="$PWD/samples/Alderbrook/Meridian/Meridian.app"

work="$(mktemp -d)"
office=""
display=""
finish() {
    [ -z "$office" ] || kill "$office" 2>/dev/null || true
    [ -z "$display" ] || kill "$display" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT
profile="-env:UserInstallation=file://$work/profile"

# Every text as it stands, the second sheet.
filter="csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,false,false,false,2"
for workbook in "$tour"/*.xlsx; do
    soffice "$profile" --headless --convert-to "$filter" --outdir "$work/csv" "$workbook" >/dev/null 2>&1
done
/usr/bin/python3 tests/workbooks/check_csv.py "$application" "$work/csv"

cp "$tour/attributes Account.xlsx" "$work/Tessaly Export.xlsx"
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1400x800x24 >/dev/null 2>&1 3>"$work/display" &
display=$!
read -r number <"$work/display" # once it is there
export DISPLAY=":$number"
soffice "$profile" --nologo --norestore --nofirststartwizard "$work/Tessaly Export.xlsx" >/dev/null 2>&1 &
office=$!
window="$(timeout 120 xdotool search --sync --onlyvisible --limit 1 --name 'Tessaly Export.xlsx')"
xdotool windowmove --sync "$window" 0 0 windowsize "$window" 1400 800
# Calc draws its toolbars and sheet one after the other and says nowhere that it is done.
sleep "${TESSALY_CALC_SECONDS:-10}"
import -window root docs/pictures/workbook.png
echo "docs/pictures/workbook.png shows it."
