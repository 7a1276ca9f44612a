# What ./zeb and ./check share: packages and builds. Sourced with $top set to the project's folder.

# need COMMAND PACKAGE...: installs the packages unless the command is there.
need() {
  command=$1
  shift
  command -v "$command" >/dev/null 2>&1 || install_packages "$@"
}

install_packages() {
  echo "zeb: installing $*" >&2
  if ! command -v apt-get >/dev/null 2>&1; then
    echo "zeb: this machine has no apt-get; please install by hand: $*" >&2
    exit 1
  fi
  apt_get install -y --no-install-recommends "$@" || {
    apt_get update && apt_get install -y --no-install-recommends "$@"
  } || {
    echo "zeb: could not install $*" >&2
    exit 1
  }
}

apt_get() {
  if [ "$(id -u)" = 0 ]; then
    DEBIAN_FRONTEND=noninteractive apt-get -q "$@" >&2
  else
    sudo DEBIAN_FRONTEND=noninteractive apt-get -q "$@" >&2
  fi
}

need_compiler() {
  need g++ g++
  need cmake cmake
  need make make
}

# build TARGET [CMAKE-ARGUMENT...]: configures if need be and builds the way that $preset names, Release if
# none; its output shows only when it fails.
build() {
  target=$1
  shift
  preset=${preset:-release}
  mkdir -p "$top/build"
  [ -d "$top/build/$preset" ] || echo "zeb: the first build takes a minute or two" >&2
  (
    flock 9
    cd "$top" || exit 1
    if [ ! -f "build/$preset/Makefile" ] || [ $# -gt 0 ]; then
      cmake --preset "$preset" "$@" || exit 1
    fi
    cmake --build --preset "$preset" --target "$target" --parallel 2
  ) 9>"$top/build/lock" >"$top/build/log" 2>&1 || {
    cat "$top/build/log" >&2
    echo "zeb: the build failed" >&2
    exit 1
  }
}
