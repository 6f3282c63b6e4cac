# Sourced by ./run and ./test: makes sure that what the build needs is installed. Says so before it
# installs anything; does nothing where all is there.

# shellcheck shell=bash
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

say() { printf '==> %s\n' "$*"; }

# The packages of the given groups in tools/packages.txt that are not installed.
missing_packages() {
    local groups=" $* " group package
    while read -r group package; do
        case "$group" in '' | '#'*) continue ;; esac
        [[ "$groups" == *" $group "* ]] || continue
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            printf '%s\n' "$package"
    done <"$root/tools/packages.txt"
}

install_packages() {
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || {
            say "These packages are needed; please install them: ${missing[*]}"
            return 1
        }
        as_root=(sudo)
    fi
    say "Installing with apt: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq -o DPkg::Lock::Timeout=300
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
        --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}" >/dev/null
}

# build <preset> [target ...]: configures when needed and builds.
build() {
    local preset="$1" started=$SECONDS
    shift
    if [[ ! -f "$root/build/$preset/build.ninja" ]]; then
        say "Configuring ($preset)"
        cmake -S "$root" --preset "$preset" >/dev/null
    fi
    say "Building ($preset)"
    cmake --build "$root/build/$preset" ${1:+--target "$@"} -- --quiet
    say "Built in $((SECONDS - started)) s"
}
