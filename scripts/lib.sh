# shellcheck shell=bash disable=SC2034
# Shared by the scripts of this folder, which source it; they work from the project's root. The list of packages stands
# here and nowhere else.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit
jobs=$(nproc)

# Debian 12 packages: what a build needs, and what the tests, the sanitizers, the static analysis and the benchmarks need
# beyond it. clang-14 brings neither the sanitizers' run-time libraries nor llvm-symbolizer, without which no leak has a
# name and no suppression matches; Aravis' own description asks for libusb.
build_packages=(g++ cmake ninja-build ccache pkg-config liblog4cxx-dev libgtest-dev libgmock-dev libcli11-dev
    nlohmann-json3-dev libedit-dev libaravis-dev libusb-1.0-0-dev libasio-dev libpcap-dev binutils help2man dpkg-dev file)
test_packages=(valgrind doxygen fakeroot aravis-tools aravis-tools-cli iproute2 libxml2-utils tshark)
sanitizer_packages=(clang-14 libclang-rt-14-dev llvm-14)
check_packages=(clang-format-14 clang-tidy-14 cppcheck shellcheck)
bench_packages=(libbenchmark-dev gnuplot-nox)

say() { printf '\n== %s\n' "$*"; }
die() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# install_missing PACKAGE...: asks apt for those that are not there, and leaves apt alone when all are.
install_missing() {
    command -v dpkg-query >/dev/null || die "this is no Debian system; install by hand what corresponds to: $*"
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    say "Installing ${missing[*]}"
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "installing needs root or sudo; missing: ${missing[*]}"
        apt=(sudo "${apt[@]}")
    fi
    "${apt[@]}" update </dev/null
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null
}

# build PRESET [TARGET...]: configures and builds; does nothing for what is up to date.
build() {
    local preset=$1 targets=()
    [ $# -eq 1 ] || targets=(--target "${@:2}")
    # ccache refuses to work without a folder to write to, which a user without a home lacks.
    [ -n "${CCACHE_DIR:-}" ] || [ -w "${HOME:-/nonexistent}" ] || export CCACHE_DIR=$root/.cache/ccache
    say "Building preset $preset in build/$preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$jobs" "${targets[@]}"
}

# The leak check stops a process with ptrace, which some containers forbid. Every test would fail then, and none would
# say why; so it is tried once, on a program without a leak. Results then carry what $leaks_unchecked says.
leaks_unchecked=
check_leak_detection() {
    local probe
    probe=$(mktemp -d)
    printf 'int main() {}\n' >"$probe/main.cpp"
    clang++-14 -fsanitize=address "$probe/main.cpp" -o "$probe/main"
    if ! ASAN_OPTIONS=detect_leaks=1 "$probe/main" >"$probe/log" 2>&1; then
        cat "$probe/log" >&2
        export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
        leaks_unchecked=" (leaks unchecked: the leak check needs ptrace, which this machine forbids)"
        say "LeakSanitizer does not work here$leaks_unchecked"
    fi
    rm -rf "$probe"
}
