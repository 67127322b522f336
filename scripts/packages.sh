# Sourced by the other scripts: what has to be installed, and installing it.

build_packages=(g++ cmake ninja-build pkg-config libgtkmm-2.4-dev fonts-dejavu-core python3-minimal)
headless_packages=(xvfb)
test_packages=(xvfb libgtest-dev libx11-dev libxtst-dev libxdamage-dev xclip less vim-tiny)
bench_packages=(xvfb libx11-dev libxtst-dev libxdamage-dev xterm)

# require PACKAGE...: installs those that are missing. Where that cannot be done
# the message names them, and the script ends.
require() {
  if ! command -v dpkg-query >/dev/null; then
    require_programs "$@"
    return
  fi
  local package missing=()
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) == *" installed" ]] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      echo "Install them as root (apt-get install ${missing[*]}) and run this again." >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  echo "Installing: ${missing[*]}" >&2
  # Services and locales may ask on installation; nobody is there to answer.
  if ! { "${as_root[@]}" apt-get -q update && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
         apt-get -q -y --no-install-recommends install "${missing[@]}"; } >&2 </dev/null; then
    echo "These packages could not be installed: ${missing[*]}" >&2
    echo "Install them by hand (apt-get install ${missing[*]}) and run this again." >&2
    exit 1
  fi
}

# On a system of another kind only the programs and libraries can be looked for.
require_programs() {
  local missing=()
  command -v g++ >/dev/null || command -v clang++ >/dev/null || missing+=("a C++20 compiler")
  local program
  for program in cmake ninja pkg-config python3; do
    command -v "$program" >/dev/null || missing+=("$program")
  done
  pkg-config --exists gtkmm-2.4 2>/dev/null || missing+=("gtkmm 2.4 with its headers")
  [ ${#missing[@]} -eq 0 ] && return
  echo "This system has no apt-get, so nothing was installed. Missing:" >&2
  printf '  %s\n' "${missing[@]}" >&2
  echo "On Debian the packages would be: $*" >&2
  exit 1
}

cmake_version=3.25
# The oldest release whose CMake is new enough: Debian 12, Ubuntu 23.04.
require_cmake() {
  local found
  found=$(cmake --version | sed -nE '1s/.* ([0-9]+\.[0-9]+).*/\1/p')
  if [ "$(printf '%s\n' "$cmake_version" "$found" | sort -V | head -n 1)" != "$cmake_version" ]; then
    echo "CMake $cmake_version or newer is needed; this system has $found." >&2
    exit 1
  fi
}

# build PRESET TARGETS [-DNAME=VALUE...]: brings the tree build/PRESET up to date.
# CMake runs only where the tree is not configured this way yet.
build() {
  local tree=build/$1 targets=$2 setting
  require_cmake
  for setting in CMAKE_MAKE_PROGRAM "${@:3}"; do
    if ! grep -qE "^$(sed -E 's/^-D//; s/=/:[A-Z]*=/' <<<"$setting")" "$tree/CMakeCache.txt" 2>/dev/null; then
      cmake --preset "$1" "${@:3}" >&2
      break
    fi
  done
  # shellcheck disable=SC2086
  ninja -C "$tree" $targets | { grep -vE '^ninja: (Entering|no work)|Re-checking globbed' || true; } >&2
}
