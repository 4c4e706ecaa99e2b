# Installing, configuring and building. Sourced by ./run, ./test and .ci/run, not run; expects the
# project's folder in $top.

. "$top/scripts/packages.sh"

fail() {
  echo "${0##*/}: $*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "to install packages this needs root or sudo; missing:$missing"
  fi
}

# install PACKAGE...: installs the missing ones; if none is missing, it asks for nothing.
install() {
  command -v dpkg-query >/dev/null ||
    fail "this is no Debian system; install what stands in scripts/packages.sh and build with CMake"
  missing=
  for package; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) || status=
    [ "$status" = installed ] || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0

  echo "${0##*/}: installing$missing"
  options="-qq -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0"
  # Unquoted: lists of words.
  # shellcheck disable=SC2086
  as_root apt-get $options update </dev/null ||
    echo "${0##*/}: the package lists could not be fetched, going on with those at hand" >&2
  # shellcheck disable=SC2086
  as_root env DEBIAN_FRONTEND=noninteractive apt-get $options install --yes \
    --no-install-recommends $missing </dev/null ||
    fail "apt-get could not install$missing (its reasons stand above; is there a network?)"
}

# build PRESET [TARGET]: configures if that has not been done, and builds what is not up to date.
build() {
  (cd "$top" && configure "$1" && cmake --build --preset "$1" ${2:+--target "$2"}) </dev/null ||
    fail "the build failed (preset $1)"
}

# The build reconfigures itself after every change except one of the presets.
configure() {
  if [ -e "build/$1/build.ninja" ] && [ ! CMakePresets.json -nt "build/$1/CMakeCache.txt" ]; then
    return 0
  fi
  cmake --preset "$1"
}
