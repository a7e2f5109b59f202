# Sourced by ./run, ./test and .ci/run: brings a fresh Debian 12 machine to the point where the project builds.
# Installs only what is missing, and says what.

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev qt6-svg-dev
  libsqlitecpp-dev libsqlite3-dev)
test_packages=(libgtest-dev libbenchmark-dev python3 sqlite3 xvfb openbox xdotool imagemagick locales)
check_packages=(clang-format clang-tidy libasan8 libubsan1)

install_missing() {
  local missing=() package
  local installed
  installed=$(dpkg-query -W -f '${Package} ${Status}\n' "$@" 2>/dev/null | awk '/ installed$/{print $1}')
  for package in "$@"; do
    grep -qx "$package" <<<"$installed" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  local as_root=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null || { echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# configure PRESET FOLDER: only when it was not done yet; later changes are seen by the build itself.
configure() {
  [[ -f $2/build.ninja ]] || cmake --preset "$1"
}
