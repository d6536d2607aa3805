# Shared by ./run and ./test: source it from the project's top folder.

# packages_of [SECTION...]: what packages.txt lists there for this release, all of it without a section.
packages_of() {
    local release
    release=$(. /etc/os-release && echo "${VERSION_ID:-}")
    awk -v sections="$(printf '%s|' "$@")" -v release="$release" '
        /^# / { section = substr($0, 3); next }
        NF && (sections == "|" || index("|" sections, "|" section "|")) {
            if ($1 !~ /:$/) print $1
            else if ($1 == release ":") print $2
        }' packages.txt
}

# as_root COMMAND...
as_root() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Packages are missing, and only root or sudo can install them. As root, please run:" >&2
        echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
        return 1
    fi
}

# install_packages [SECTION...]: installs what of them is missing, and says how far it is.
install_packages() {
    local missing=()
    mapfile -t missing < <(comm -23 <(packages_of "$@" | sort -u) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort -u))
    ((${#missing[@]})) || return 0
    echo "Installing ${missing[*]}"
    mkdir -p build
    local log=build/packages.log apt=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -y --no-install-recommends
        -o DPkg::Lock::Timeout=300)
    as_root "${apt[@]}" update >"$log" 2>&1 &&
        as_root "${apt[@]}" install "${missing[@]}" 2>>"$log" | show_installation "$log" && return
    tail -n 20 "$log"
    return 1
}

# Of what apt-get prints, how much it downloads and how much of it is unpacked and set up.
show_installation() {
    local line steps=0 step=0
    start_progress
    while IFS= read -r line; do
        echo "$line" >>"$1"
        if [[ $line =~ ^([0-9]+)\ upgraded,\ ([0-9]+)\ newly ]]; then
            steps=$((2 * (BASH_REMATCH[1] + BASH_REMATCH[2])))
        elif [[ $line =~ ^Need\ to\ get\ (.*)\ of\ archives ]]; then
            echo "  downloading ${BASH_REMATCH[1]}"
        elif [[ $line =~ ^(Unpacking|Setting\ up)\  ]] && ((steps)); then
            ((step++ == 0)) && echo "  unpacking and setting up"
            show_progress "$step" "$steps"
        fi
    done
    ((step == 0)) || end_progress
}

# show_progress DONE ALL: in one line on a terminal, else at each tenth and after each half minute.
show_progress() {
    local said="  $1 of $2, $(($2 - $1)) to go"
    if [[ -t 1 ]]; then
        printf '\r%s\033[K' "$said"
    elif ((10 * $1 / $2 > progress_tenths || SECONDS >= progress_next)); then
        echo "$said"
        progress_tenths=$((10 * $1 / $2)) progress_next=$((SECONDS + 30))
    fi
}
start_progress() { progress_tenths=0 progress_next=$((SECONDS + 30)); }
end_progress() { [[ ! -t 1 ]] || echo; }

# build PRESET [cmake option...]: configures and builds, and says how far it is; what it prints is in build/PRESET.log.
build() {
    local preset=$1
    shift
    local log=build/$preset.log
    mkdir -p build
    echo "Building ($preset)"
    if ! { cmake --preset "$preset" "$@" >"$log" 2>&1 &&
        NINJA_STATUS='[%f/%t] ' cmake --build --preset "$preset" --parallel "$(nproc)" 2>&1 | show_steps "$log"; }; then
        tail -n 60 "$log"
        return 1
    fi
}

# Of what ninja prints, how many steps are done.
show_steps() {
    local line shown=false
    start_progress
    while IFS= read -r line; do
        echo "$line" >>"$1"
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        shown=true
        show_progress "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    done
    [[ $shown == false ]] || end_progress
}
