# Shared by ./run and ./test: source it from the project's top folder.

# packages_of [SECTION...]: what packages.txt lists there, all of it without a section.
packages_of() {
    awk -v sections="$(printf '%s|' "$@")" '
        /^# / { section = substr($0, 3); next }
        NF && (sections == "|" || index("|" sections, "|" section "|")) { print $1 }' packages.txt
}

# install_packages [SECTION...]: installs what of them is missing.
install_packages() {
    local package missing=()
    for package in $(packages_of "$@"); do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    ((EUID)) && as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [cmake option...]: configures and builds; quiet unless it fails.
build() {
    local preset=$1
    shift
    local log=build/$preset.log
    mkdir -p build
    echo "Building ($preset)"
    if ! { cmake --preset "$preset" "$@" && cmake --build --preset "$preset" --parallel 2; } >"$log" 2>&1; then
        tail -n 60 "$log"
        return 1
    fi
}
