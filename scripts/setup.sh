# Sourced by the project's commands: installs missing packages, and builds with little output.

kBuildPackages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n nlohmann-json3-dev gettext fonts-dejavu-core fonts-liberation)

# need_packages NAME...: installs missing Debian packages; silent if there are none.
need_packages() {
  local missing=() name
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    return 0 # Not a Debian machine: the build names what is missing.
  fi
  for name in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] ||
      missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      { echo "Please install as root: ${missing[*]}" >&2; return 1; }
    root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  mkdir -p build
  { "${root[@]}" apt-get update &&
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"; } >build/install.log 2>&1 ||
    { tail -n 15 build/install.log >&2; echo "Installing failed: see build/install.log" >&2; return 1; }
}

# want_packages NAME...: installs what some tests need; they are skipped without it.
want_packages() {
  need_packages "$@" 2>/dev/null || echo "Not installed, so some tests are skipped: $*"
}

# build PRESET [TARGET...]: configures if needed and builds; details go to build/PRESET.log.
build() {
  local preset=$1 log=build/$1.log
  shift
  mkdir -p build
  if [ -f "build/$preset/build.ninja" ] && ninja -C "build/$preset" -n "$@" 2>/dev/null |
    grep -q 'no work to do'; then
    return 0
  fi
  echo "Building ($preset)"
  { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } \
    >"$log" 2>&1 ||
    { grep -E '(: |fatal )error|undefined reference' "$log" | head -n 20 >&2 || tail -n 5 "$log" >&2
      echo "The build failed: see $log" >&2; return 1; }
}
