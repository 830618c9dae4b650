# Debian's packages, and where this system gets them from. To be sourced after messages.sh.

# os_release NAME DEFAULT: what the system says of itself, where it does.
os_release() {
    (. /etc/os-release && echo "${!1:?}") 2>/dev/null || echo "$2"
}

require_debian() {
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null ||
        fail "$(os_release PRETTY_NAME "this system") has no apt-get; install CMake 3.25, g++ 12, Ninja," \
            "nlohmann JSON 3.12, {fmt} and GoogleTest by hand, then:" \
            "cmake --preset linux-release && cmake --build --preset linux-release"
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_missing LOG PACKAGE...
install_missing() {
    local log=$1 package missing=() as_root=()
    shift
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "packages are missing, and there is no sudo; as root: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    with_progress "installing ${missing[*]}" "$log" apt_install "${missing[@]}" ||
        fail "$(first_error "$log"); once that is mended, as root: apt-get install ${missing[*]}"
}

# Lists that cannot be renewed may still do; if not, the installation fails and tells.
apt_install() {
    "${as_root[@]}" apt-get -qq update || true
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install -y --no-install-recommends -o DPkg::Lock::Timeout=300 "$@"
}

# The line that tells most of what apt or sudo printed.
first_error() {
    grep -m 1 -E '^(E|sudo): ' "$1" || grep -m 1 '^W: ' "$1" || tail -n 1 "$1"
}

# The mirrors of the system's own Debian release, whatever they are.
debian_mirrors() {
    local suite
    suite=$(os_release VERSION_CODENAME sid)
    apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        awk -v suites="^($suite|oldstable|stable|testing|unstable|sid)\$" \
            '$1 ~ suites && $2 == "main" && !seen[$3]++ { print $3 }'
}

# source_line MIRROR SUITE: an entry for apt's list of sources.
source_line() {
    echo "deb [arch=$(dpkg --print-architecture) signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $1 $2 main"
}
