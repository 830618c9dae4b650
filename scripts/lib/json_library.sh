# nlohmann's JSON library, 3.12 or a newer 3.x: its headers, from wherever this system can get them.
# To be sourced after messages.sh and packages.sh.

json_packages=(nlohmann-json3-dev nlohmann-json3.12-dev)
newer_suites=(forky sid)

# provide_json_library PREFIX LOG: puts the headers into PREFIX/include, the CMake package into PREFIX/share/cmake.
provide_json_library() {
    local prefix=$1 log=$2 work="$deps/scratch/json"
    [ ! -f "$prefix/include/nlohmann/json.hpp" ] || return 0

    say "getting the JSON library"
    rm -rf "$work"
    mkdir -p "$work" "$prefix/include" "$prefix/share/cmake"
    : >"$log"
    take_json_headers /usr || take_json_headers /usr/local || download_json_library || download_newer_json_library ||
        fail "neither this system's packages nor Debian's ${newer_suites[*]} gave nlohmann JSON 3.12" \
            "($(first_error "$log")); install nlohmann-json3.12-dev or newer by hand"
    rm -rf "$work"
}

# take_json_headers FROM: moves nothing into place that is too old or not complete.
take_json_headers() {
    local from=$1 macros="$1/include/nlohmann/detail/abi_macros.hpp"
    [ -f "$macros" ] && [ -d "$from/share/cmake/nlohmann_json" ] && is_new_json "$(json_release_of "$macros")" ||
        return
    cp -r "$from/share/cmake/nlohmann_json" "$prefix/share/cmake/" &&
        cp -r "$from/include/nlohmann" "$work/" &&
        mv "$work/nlohmann" "$prefix/include/"
}

json_release_of() {
    awk '/#define NLOHMANN_JSON_VERSION_(MAJOR|MINOR)/ { printf "%s%s", separator, $3; separator = "." }' "$1"
}

# download_json_library [APT OPTION...]: the first package that is new enough, among those that apt knows.
download_json_library() {
    local package
    for package in "${json_packages[@]}"; do
        is_new_json "$(json_release_of_package "$package" "$@")" &&
            unpack_package "$package" "$@" &&
            take_json_headers "$work/unpacked/usr" && return
    done
    return 1
}

# A package taken back to an older release says so: 3.12.0.really.3.11.3 is 3.11.3.
json_release_of_package() {
    local package=$1 version
    shift
    version=$(apt-cache "$@" show --no-all-versions "$package" 2>/dev/null | awk '$1 == "Version:" { print $2; exit }')
    version=${version#*:}
    version=${version##*really.}
    echo "${version%-*}"
}

is_new_json() {
    [[ "$1" =~ ^3\.([0-9]+) ]] && [ "${BASH_REMATCH[1]}" -ge 12 ]
}

unpack_package() {
    local package=$1
    shift
    rm -rf "$work/unpacked" "$work"/*.deb
    (cd "$work" && apt-get -qq -o APT::Sandbox::User="$(id -un)" "$@" download "$package") >>"$log" 2>&1 &&
        dpkg -x "$work/$package"_*.deb "$work/unpacked"
}

# By way of an apt state of our own: the system's sources stay as they are, its proxy and its keys are used.
download_newer_json_library() {
    local suite mirror state="$work/apt" mirrors
    mirrors=$(debian_mirrors)
    [ -n "$mirrors" ] ||
        fail "apt has no source of Debian's main packages; add one, or install nlohmann-json3.12-dev by hand"
    local options=(
        -o Dir::State="$state/state" -o Dir::Cache="$state/cache"
        -o Dir::Etc::sourcelist="$state/sources.list" -o Dir::Etc::sourceparts=/dev/null
        -o Acquire::Languages=none -o APT::Sandbox::User="$(id -un)")
    for suite in "${newer_suites[@]}"; do
        for mirror in $mirrors; do
            rm -rf "$state"
            mkdir -p "$state/state/lists/partial" "$state/cache/archives/partial"
            source_line "$mirror" "$suite" >"$state/sources.list"
            apt-get -qq "${options[@]}" update >>"$log" 2>&1 && download_json_library "${options[@]}" && return
        done
    done
    return 1
}
