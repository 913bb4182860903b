# Shell functions that ./run and ./test share: what must be installed, and how to build.
# Sourced from the root of the checkout.

build_packages=(g++ cmake ninja-build pkg-config libcli11-dev nlohmann-json3-dev libedit-dev)
test_packages=(git libgtest-dev libgmp-dev libmpfr-dev clang libclang-rt-14-dev clang-format clang-tidy
  locales dpkg-dev file python3 parallel)
calc_packages=(libreoffice-dev libreoffice-calc)
calc_test_packages=(python3 python3-uno xvfb procps util-linux)
windows_packages=(g++-mingw-w64-x86-64-posix mingw-w64-tools wine64 fp-utils-3.2.2 googletest libgmp-dev
  libmpfr-dev python3)
arm_packages=(g++-aarch64-linux-gnu qemu-user nlohmann-json3-dev python3)
coverage_packages=(gcovr)
abi_packages=(abigail-tools)
bench_packages=(libbenchmark-dev libgmp-dev libmpfr-dev libflint-dev python3 python3-mpmath bc time)

# Installs the Debian packages that are not there yet.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing: ${missing[*]}" >&2
  local become=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are needed, and neither root nor sudo is there to install them:" >&2
      echo "  apt-get install ${missing[*]}" >&2
      exit 2
    }
    become=(sudo)
  fi
  "${become[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${become[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# How far a build is: on a terminal a line that counts, elsewhere a line now and then.
show_progress() {
  local line next=0
  while IFS= read -r line; do
    [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
    if [ -t 2 ]; then
      printf '\r  %d of %d steps ' "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}" >&2
    elif [ "${BASH_REMATCH[1]}" -ge $next ]; then
      echo "  ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]} steps" >&2
      next=$((BASH_REMATCH[1] + BASH_REMATCH[2] / 4 + 1))
    fi
  done
  [ ! -t 2 ] || printf '\r\033[K' >&2
}

# build PRESET [TARGET ...]: tells how far it is, and shows what the tools say only if one fails.
build() {
  local preset=$1 log
  shift
  log=$(mktemp)
  echo "Building ($preset)..." >&2
  [ -e "build/$preset/build.ninja" ] ||
    echo "  The first build compiles all of it, which takes some minutes." >&2
  if ! { cmake --preset "$preset" ${QUORVEX_OPTIONS:-} && cmake --build --preset "$preset" ${1:+--target "$@"}; } \
      2>&1 | tee "$log" | show_progress; then
    cat "$log" >&2
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}
