# shellcheck shell=bash
# The Debian packages of this project, in one place, and their installation.
# shellcheck disable=SC2034  # the lists are for the scripts that source this file

# Builds the program and opens it on a desktop.
runPackages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-svg-dev qt6-serialport-dev libgtest-dev
    qt6-wayland fonts-dejavu-core fonts-liberation cups-client emf2svg
)

# Shows the program where there is no desktop.
virtualDisplayPackages=(xvfb openbox xdotool imagemagick poppler-utils)

# Checks and tests; the print server is for the tests that print through a real queue.
testPackages=(
    clang-format shellcheck
    xvfb xauth openbox xdotool faketime imagemagick poppler-utils
    cups cups-client printer-driver-cups-pdf
)

benchPackages=(libbenchmark-dev xvfb)

# The packages of the arguments that are not installed, one a line.
MissingPackages() {
    local installed
    # dpkg-query fails on a name that it has never heard of, and still lists the others.
    installed=" $({ dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" \
        2>/dev/null || true; } | awk '$2 == "installed" { printf "%s ", $1 }')"
    local name
    for name in "$@"; do
        [[ $installed == *" $name "* ]] || printf '%s\n' "$name"
    done
}

# apt-get as root: directly, or through sudo.
AptGet() {
    if [[ $EUID -eq 0 ]]; then
        DEBIAN_FRONTEND=noninteractive apt-get "$@"
    else
        sudo DEBIAN_FRONTEND=noninteractive apt-get "$@"
    fi
}

# True when the package lists of this machine know every one of the packages.
PackagesAreKnown() {
    local name
    for name in "$@"; do
        [[ $(apt-cache policy "$name") == *'Candidate: '[^\(]* ]] || return 1
    done
}

InstallMissing() {
    PackagesAreKnown "$@" || AptGet update || return
    # Old lists can name files that the mirror no longer has.
    AptGet install --yes --no-install-recommends "$@" ||
        { AptGet update && AptGet install --yes --no-install-recommends "$@"; }
}

# Makes sure that the packages of the arguments are installed.
InstallPackages() {
    command -v dpkg-query apt-get >/dev/null ||
        Fail "This is no Debian system. Install the likes of these packages by hand: $*"
    local missing
    mapfile -t missing < <(MissingPackages "$@")
    if [[ ${#missing[@]} -eq 0 ]]; then
        Step "Packages: nothing to install."
        return
    fi
    [[ $EUID -eq 0 ]] || command -v sudo >/dev/null ||
        Fail "Missing packages, and neither root nor sudo to install them: ${missing[*]}"
    Step "Packages: installing ${missing[*]}"
    Logged packages InstallMissing "${missing[@]}" ||
        Fail "The packages could not be installed."
}
