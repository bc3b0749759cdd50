# shellcheck shell=bash disable=SC2034 # the lists are read by those that source this file
# Sourced by ./run and ./test, with `home` set to the project's folder.

build_packages=(g++ cmake ninja-build qt6-base-dev)
display_packages=(fonts-noto-core)
test_packages=(libgtest-dev xvfb openbox)

# Installs those of the packages that are not there yet.
install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  echo "Installing ${missing[*]}"
  # A list that cannot be renewed matters only where a package is then not found.
  "${sudo[@]}" apt-get update -qq || echo "Going on with the package lists that are there" >&2
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# build_preset PRESET OPTION [--target NAME]: configures and builds in build/PRESET.
build_preset() {
  local preset=$1 option=$2
  shift 2
  (cd "${home:?}" && cmake --preset "$preset" "$option" && cmake --build --preset "$preset" "$@")
}
