# Sourced by run.sh and test.sh: installs the Debian packages that a script needs and this machine
# lacks. Prints nothing when there is nothing to do.

build_packages="ca-certificates cmake fp-utils g++ libqt6svg6 libxlsxwriter-dev ninja-build qt6-base-dev"
bench_packages="python3-xlsxwriter"
test_packages="appstream clang clang-format desktop-file-utils git libbenchmark-dev libclang-rt-14-dev librapidcheck-dev locales python3 python3-openpyxl"
packaging_packages="dpkg-dev gzip lintian"

# need PACKAGE ...: makes sure that all of them are installed, as root or through sudo.
need() {
    missing=""
    for package in "$@"; do
        case "$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null)" in
            "install ok installed") ;;
            *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0

    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing:$missing" >&2
            echo "Install them as root: apt-get install --no-install-recommends$missing" >&2
            exit 1
        fi
        as_root="sudo"
    fi
    echo "Installing:$missing"
    # shellcheck disable=SC2086 # the list is meant to fall into words
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq --no-install-recommends $missing >/dev/null 2>&1 ||
        { $as_root apt-get update -qq &&
          $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq --no-install-recommends $missing >/dev/null; } ||
        { echo "These packages could not be installed:$missing" >&2; exit 1; }
}

# configure PRESET: runs CMake's configuration the first time only; a build repeats it when needed.
configure() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >"build-$1.log" 2>&1 ||
        { cat "build-$1.log" >&2; rm -f "build-$1.log"; exit 1; }
    rm -f "build-$1.log"
}
