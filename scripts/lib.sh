# shellcheck shell=bash disable=SC2034
# Sourced by the scripts of this folder, which run in the project's root. The only list of packages.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit
jobs=$(nproc)

# Debian 12 packages: for the build, and additionally for tests, sanitizers, static analysis, benchmarks and
# cross-compilation. clang-14 does not depend on the sanitizers' run-time libraries or on llvm-symbolizer, without which
# leaks have no names and suppressions do not match. The pkg-config file of Aravis requires libusb.
build_packages=(g++ cmake ninja-build ccache pkg-config liblog4cxx-dev libgtest-dev libgmock-dev libcli11-dev
    nlohmann-json3-dev libedit-dev libpng-dev libturbojpeg0-dev libzip-dev libaravis-dev libusb-1.0-0-dev libasio-dev libboost1.74-dev libpcap-dev
    binutils help2man dpkg-dev file)
test_packages=(valgrind doxygen fakeroot aravis-tools aravis-tools-cli iproute2 libxml2-utils tshark gstreamer1.0-tools
    gstreamer1.0-plugins-good chromium chromium-driver python3)
sanitizer_packages=(clang-14 libclang-rt-14-dev llvm-14)
check_packages=(clang-format-14 clang-tidy-14 cppcheck shellcheck)
bench_packages=(libbenchmark-dev gnuplot-nox aravis-tools)
arm64_packages=(g++-aarch64-linux-gnu qemu-user)
# For arm64 itself: what tests link, with the libraries that this requires when it runs.
arm64_sysroot_packages=(liblog4cxx-dev liblog4cxx15 libapr1-dev libapr1 libaprutil1-dev libaprutil1 libexpat1 libuuid1
    libcrypt1 libgtest-dev libgmock-dev)

say() { printf '\n== %s\n' "$*"; }
die() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# install_missing PACKAGE...: installs missing packages with apt; does not call apt if there are none.
install_missing() {
    command -v dpkg-query >/dev/null || die "not a Debian system; install the equivalents of: $*"
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    say "Installing ${missing[*]}"
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "installing requires root or sudo; missing: ${missing[*]}"
        apt=(sudo "${apt[@]}")
    fi
    "${apt[@]}" update </dev/null
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null
}

# build PRESET [TARGET...]: configures and builds incrementally.
build() {
    local preset=$1 targets=()
    [ $# -eq 1 ] || targets=(--target "${@:2}")
    # ccache needs a writable folder, which users without a home do not have.
    [ -n "${CCACHE_DIR:-}" ] || [ -w "${HOME:-/nonexistent}" ] || export CCACHE_DIR=$root/.cache/ccache
    say "Building preset $preset in build/$preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$jobs" "${targets[@]}"
}

# Shows failures and the summary of ctest. The rest is in the log.
digest() { grep --line-buffered -v -e '^ *Start ' -e ' Passed  *[0-9.]* sec$' || true; }

# The leak check uses ptrace. In containers that forbid it, every test would fail without saying why. So it is tried
# once on a program without leaks. If that fails, the summary contains $leaks_unchecked.
leaks_unchecked=
check_leak_detection() {
    local probe
    probe=$(mktemp -d)
    printf 'int main() {}\n' >"$probe/main.cpp"
    clang++-14 -fsanitize=address "$probe/main.cpp" -o "$probe/main"
    if ! ASAN_OPTIONS=detect_leaks=1 "$probe/main" >"$probe/log" 2>&1; then
        cat "$probe/log" >&2
        export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
        leaks_unchecked=" (leaks unchecked: the leak check requires ptrace, which this machine forbids)"
        say "LeakSanitizer does not work here$leaks_unchecked"
    fi
    rm -rf "$probe"
}
