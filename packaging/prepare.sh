# Sourced by ./run, ./test and .ci/run: brings a fresh Debian 12 machine to the point where the project builds.
# Installs only what is missing, and says what.

build_packages=(g++ cmake ninja-build ccache lld qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev qt6-svg-dev
  libsqlitecpp-dev libsqlite3-dev)
test_packages=(libgtest-dev python3 sqlite3 xvfb openbox xdotool imagemagick locales desktop-file-utils appstream)
check_packages=(libbenchmark-dev clang-format clang-tidy libasan8 libubsan1 debootstrap git)

# missing_of PACKAGE...: those that are not installed, one a line.
missing_of() {
  local installed package
  # Its status tells of unknown packages, which are what is looked for.
  installed=$(dpkg-query -W -f '${Package} ${Status}\n' "$@" 2>/dev/null | awk '/ installed$/{print $1}') || true
  for package in "$@"; do
    grep -qx -- "$package" <<<"$installed" || echo "$package"
  done
}

install_missing() {
  local missing as_root=()
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian: see to it that what these packages hold is there: $*" >&2
    return
  fi
  mapfile -t missing < <(missing_of "$@")
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      echo "As root: apt-get install --no-install-recommends ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  echo "Installing what is missing, which takes minutes on a fresh machine: ${missing[*]}"
  "${as_root[@]}" apt-get update || echo "Going on with the package lists that are here." >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}
