# shellcheck shell=bash disable=SC2034,SC2154
# What the program needs on Windows, cross-built from the sources of Debian's own packages and kept in
# the user's cache. To be sourced after setup.sh.

# Beside these the build packages of setup.sh are needed: their versions are what is built here.
windows_packages=(
  g++-mingw-w64-x86-64-posix dpkg-dev
  qt6-base-dev-tools  # the tools of Qt that run here: moc, rcc, uic
)
wine_packages=(wine wine64 xvfb xauth x11-utils imagemagick)
windows_target=x86_64-w64-mingw32
version=$(sed -n 's/^project(tricklet VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# The packages of this system whose sources are built.
mirrored_packages=(qt6-base-dev libdds0 libpugixml-dev libutf8proc-dev libcli11-dev libgtest-dev)

# Off: modules and plugins that the program does not use, and the system's copies of libraries that Qt
# brings along. OpenGL stays on: printing and the plugin for windows do not link without it.
qt_options=(
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF
  -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF
  -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF -DFEATURE_pkg_config=OFF
  -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF -DFEATURE_testlib=OFF
  -DFEATURE_gif=OFF -DFEATURE_jpeg=OFF
  -DFEATURE_openssl=OFF -DINPUT_openssl=no -DFEATURE_schannel=ON
  -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF
  -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF
  -DFEATURE_system_doubleconversion=OFF -DFEATURE_system_libb2=OFF
)
solver_options=(-O3 -std=c++11 -shared -static -s -DDDS_THREADS_STL)
# apt on the sources of Debian's packages, in folders of its own: nothing of the system changes, and
# signatures are checked as ever.
apt_sources() {  # apt_sources FOLDER ARGUMENT...
  local folder=$1 user=()
  shift
  ((EUID != 0)) || user=(-o APT::Sandbox::User=root)  # another could not write there
  apt-get -qq "${user[@]}" -o Dir::Etc::SourceList="$folder/sources.list" \
    -o Dir::Etc::SourceParts=- -o Dir::State::Lists="$folder/lists" -o Dir::Cache="$folder/cache" "$@"
}

# The mirrors are those from which the system gets Debian's packages.
list_sources() {  # list_sources FOLDER
  mkdir -p "$1/lists/partial" "$1/cache/archives/partial" "$1/download"
  # shellcheck disable=SC2016  # apt replaces these
  apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' | sort -u >"$1/sources.list"
  [[ -s $1/sources.list ]] || die "apt knows no mirror of Debian: run apt-get update first"
  apt_sources "$1" update
}

# "PACKAGE=VERSION" of the source of each mirrored package.
source_versions() {
  dpkg-query -W -f '${source:Package}=${source:Version}\n' "${mirrored_packages[@]}" | sort
}

# Fetches the source of a package into FOLDER/PACKAGE: fetch_source FOLDER PACKAGE=VERSION. Of Qt with the
# patches that Debian has made for its security; the others are taken as their authors gave them out.
fetch_source() {
  local folder=$1 package=${2%%=*} only=--tar-only
  [[ $package != qt6-base ]] || only=--download-only
  say "fetching the source of $package"
  (cd "$folder/download" && apt_sources "$folder" source --download-only "$only" "$2")
  if [[ $package == qt6-base ]]; then
    (cd "$folder" && dpkg-source --no-check -x "download/$package"_*.dsc "$package") \
      >"$folder/$package.log" 2>&1 || die "unpacking failed; see $folder/$package.log"
    return
  fi
  mkdir -p "$folder/$package"
  tar -xf "$folder/download/$package"_*.orig.tar.* -C "$folder/$package" --strip-components=1
}

# Configures, builds and installs a source by its CMake: cross_build FOLDER PACKAGE OPTION...
cross_build() {
  local folder=$1 package=$2
  shift 2
  say "building $package for Windows"
  {
    cmake -S "$folder/$package" -B "$folder/build-$package" -G Ninja -DCMAKE_BUILD_TYPE=Release \
      -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows.cmake" -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH \
      -DTRICKLET_WINDOWS_PREFIX="$folder/prefix" -DCMAKE_INSTALL_PREFIX="$folder/prefix" \
      -DBUILD_SHARED_LIBS=OFF "$@" &&
      cmake --build "$folder/build-$package" &&
      cmake --install "$folder/build-$package"
  } >"$folder/$package.log" 2>&1 || {
    tail -n 40 "$folder/$package.log" >&2
    die "building $package failed; the whole log is $folder/$package.log"
  }
  rm -rf "$folder/build-$package"
}

build_solver() {  # build_solver FOLDER
  say "building the solver for Windows"
  mkdir -p "$1/prefix/bin"
  (cd "$1/dds/src" && "$windows_target-g++-posix" "${solver_options[@]}" -o "$1/prefix/bin/dds.dll" \
    ./*.cpp Exports.def) >"$1/dds.log" 2>&1 || die "building the solver failed; see $1/dds.log"
}

# The terms of what the packages hold, as their authors and Debian give them, and the list of the
# sources.
keep_licences() {  # keep_licences FOLDER
  local to=$1/prefix/licences
  mkdir -p "$to"
  cp "$1/qt6-base/debian/copyright" "$to/Qt.txt"
  cp "$1/dds/LICENSE" "$to/dds.txt"
  cp "$1/pugixml/LICENSE.md" "$to/pugixml.txt"
  cp "$1/utf8proc/LICENSE.md" "$to/utf8proc.txt"
  cp "$1/cli11/LICENSE" "$to/CLI11.txt"
  cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$to/libstdc++.txt"
  cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$to/mingw-w64.txt"
  cp /usr/share/common-licenses/LGPL-3 "$to/LGPL-3.txt"
  cp /usr/share/common-licenses/GPL-3 "$to/GPL-3.txt"
  source_versions | sed 's/=/ /' >"$to/sources.txt"
}

# The folder of the cache for these versions, flags and compiler.
windows_folder() {
  local key
  key=$({ source_versions; dpkg-query -W -f '${Version}\n' g++-mingw-w64-x86-64-posix
    printf '%s\n' "${qt_options[@]}" "${solver_options[@]}"; } | sha256sum)
  printf '%s/tricklet/windows-%s-%s\n' "$TRICKLET_CACHE" \
    "$(source_versions | sed -n 's/^qt6-base=/qt/p')" "${key:0:12}"
}

# What there is to link and to put beside the program is in FOLDER/prefix afterwards.
build_windows_prefix() {  # build_windows_prefix FOLDER
  local folder=$1 source
  [[ ! -f $folder/complete ]] || return 0
  rm -rf "$folder"
  list_sources "$folder"
  for source in $(source_versions); do fetch_source "$folder" "$source"; done
  build_solver "$folder"
  cross_build "$folder" pugixml
  cross_build "$folder" utf8proc -DUTF8PROC_ENABLE_TESTING=OFF
  cross_build "$folder" cli11 -DCLI11_BUILD_TESTS=OFF -DCLI11_BUILD_EXAMPLES=OFF -DCLI11_BUILD_DOCS=OFF
  cross_build "$folder" googletest
  cross_build "$folder" qt6-base -DBUILD_SHARED_LIBS=ON "${qt_options[@]}" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -dumpmachine)/cmake"
  keep_licences "$folder"
  for source in $(source_versions); do rm -rf "${folder:?}/${source%%=*}"; done
  rm -rf "$folder/cache" "$folder/lists" "$folder/download"
  touch "$folder/complete"
}

# Configures the program for Windows: configure_windows FOLDER PREFIX OPTION...
configure_windows() {
  local build=$1 prefix=$2
  shift 2
  mkdir -p "$build"
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTRICKLET_WERROR=ON \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows.cmake" -DTRICKLET_WINDOWS_PREFIX="$prefix" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -dumpmachine)/cmake" \
    -DCMAKE_INSTALL_BINDIR=. -DCMAKE_INSTALL_DOCDIR=. "$@" >"$build.log" 2>&1 || {
    cat "$build.log" >&2
    die "configuring $build failed"
  }
}
