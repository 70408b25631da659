#!/bin/sh
# Tries the Debian package as a stranger would: try_package.sh PACKAGE.deb
# To be run as root in a clean Debian 12, for example one that debootstrap made; it installs the
# package, lets an ordinary user take a journey with the keyboard alone against the installed
# program, compares the extract that was saved with one made by a script, and removes the package
# again. Ends with 1 and a message when something is not as it should be.
set -eu
package=$(realpath "$1")
here=$(dirname "$(realpath "$0")")
tests=$(dirname "$here")
user=tessaly-guest

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -qq --no-install-recommends fonts-dejavu-core openbox procps python3 xdotool xvfb xauth >/dev/null 2>&1
find / -xdev -path /tmp -prune -o -path /home -prune -o -path /var -prune -o -print | sort >/tmp/before

echo "== Installing"
apt-get install -qq --no-install-recommends "$package" >/dev/null 2>&1 || fail "it does not install"
command -v tessaly >/dev/null || fail "tessaly is not on the PATH"

echo "== A journey with the keyboard"
id "$user" >/dev/null 2>&1 || useradd --create-home "$user"
cp "$here/keyboard_journey.sh" /tmp/
rm -f "/home/$user/entities.txt"
su "$user" -c "cd && xvfb-run -a -s '-screen 0 1024x768x24' sh /tmp/keyboard_journey.sh entities.txt" ||
    fail "the journey did not come to its end"
python3 "$tests/journeys/check_extract.py" /usr/lib/tessaly/samples/Alderbrook/Meridian/Meridian.app Entity \
    "/home/$user/entities.txt" || fail "the extract is not the application's"

echo "== Removing"
apt-get remove -qq tessaly >/dev/null 2>&1 || fail "it cannot be removed"
apt-get autoremove -qq >/dev/null 2>&1
find / -xdev -path /tmp -prune -o -path /home -prune -o -path /var -prune -o -print | sort >/tmp/after
comm -13 /tmp/before /tmp/after | grep -i tessaly && fail "these are left"

echo "Installed, used and removed."
