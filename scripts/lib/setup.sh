# shellcheck shell=bash disable=SC2034
# What the scripts share: where the checkout is, the packages that each job needs, and how they are
# installed. To be sourced. Nothing outside the checkout is written but Debian packages and caches.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

# The one list of packages (Debian 12).
build_packages=(
  g++ cmake ninja-build ccache
  qt6-base-dev librsvg2-bin libcli11-dev libpugixml-dev libutf8proc-dev
  libdds0            # the double-dummy solver, loaded at run time
  fonts-dejavu-core  # has the four suit symbols
)
test_packages=(libgtest-dev libgmock-dev dealer)
bench_packages=(libbenchmark-dev dealer)
# The first clang that has std::source_location with this system's C++ library.
clang_version=16
windows_compiler=x86_64-w64-mingw32-g++-posix
lint_packages=(
  clang-format "clang-tidy-$clang_version" shellcheck
  g++-mingw-w64-x86-64-posix
  man-db mandoc
  desktop-file-utils appstream shared-mime-info
)
fuzz_packages=("clang-$clang_version" "libclang-rt-$clang_version-dev")
smoke_packages=(xvfb xauth x11-utils)
attack_packages=(python3)
web_packages=(python3 chromium chromium-driver)
debian_packages=(debhelper dpkg-dev lintian)
root_packages=(mmdebstrap)
power_packages=(e2fsprogs xfsprogs btrfs-progs)

# Caches are where the user's are, so that a fresh checkout does not begin anew. Settings and runtime
# files of the tests stay inside the checkout.
export TRICKLET_CACHE=${TRICKLET_CACHE:-${XDG_CACHE_HOME:-${HOME:-$root/build}/.cache}}
export CCACHE_DIR=${CCACHE_DIR:-$TRICKLET_CACHE/ccache} CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

say() { printf '==> %s\n' "$*"; }

die() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

is_installed() {
  [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# Installs those of the packages given that are missing; does nothing, and asks for no rights, when
# all are there.
need() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    say "no apt here: make sure that the counterparts of these are installed: $*"
    return
  fi
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  local as_root=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      die "as root, run: apt-get install --no-install-recommends ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Gives programs started from here a home of their own, so that tests never meet a person's
# settings or recycle bin.
use_private_home() {
  local home=$root/build/home
  mkdir -p "$home/config" "$home/data" "$home/cache" "$home/runtime"
  chmod 700 "$home/runtime"
  export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  export XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/runtime
}

# Configures build/FOLDER, quietly unless it fails: configure PRESET FOLDER [cmake argument...]
configure() {
  local preset=$1 folder=build/$2
  shift 2
  say "building $folder"
  cmake --preset "$preset" -B "$folder" "$@" >"$folder.log" 2>&1 || {
    cat "$folder.log" >&2
    die "configuring $folder failed"
  }
}

# Configures and builds a preset in the folder of its name.
build() {
  configure "$1" "$1"
  cmake --build "build/$1"
}

# A copy of the sample libraries that may be changed without the checkout noticing; prints its path.
sample_root() {
  local sample=$root/build/sample-root
  if [[ ! -d $sample ]]; then
    rm -rf "$sample.new"
    mkdir -p "$sample.new"
    find "$root/examples" -mindepth 1 -maxdepth 1 -type d -exec cp -R {} "$sample.new" \;
    mv "$sample.new" "$sample"
  fi
  printf '%s\n' "$sample"
}

mkdir -p "$root/build"
cd "$root" || exit 1
