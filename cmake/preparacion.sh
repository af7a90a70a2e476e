# Shared by ./run and ./test: the Debian packages that they need, and a quiet build.

PAQUETES_PROGRAMA=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n libxcb1-dev libcli11-dev
  libpolyclipping-dev nlohmann-json3-dev fonts-wqy-microhei)
PAQUETES_TESTS=(libgtest-dev libbenchmark-dev locales python3-ezdxf python3-gdal xvfb openbox xdotool acl parallel
  binutils poppler-utils dpkg-dev file)

# prepara PACKAGE...: installs those that are missing, as root or through sudo, without a question.
prepara() {
  local faltan=() paquete como=()
  for paquete in "$@"; do
    dpkg-query -W -f '${db:Status-Status}' "$paquete" 2>/dev/null | grep -qx installed || faltan+=("$paquete")
  done
  [ ${#faltan[@]} -gt 0 ] || return 0
  [ "$(id -u)" = 0 ] || como=(sudo)
  echo "Installing: ${faltan[*]}"
  "${como[@]}" apt-get -qq update
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${faltan[@]}" >/dev/null
}

# construye PRESET TESTS TARGET...: configures where it must and builds; silent unless something fails or is built. TESTS
# is ON or OFF: the program alone needs no test libraries; tests once switched on stay on.
construye() {
  local preset=$1 tests=$2 carpeta=build/$1
  shift 2
  mkdir -p "$carpeta"
  {
    { grep -Eqs "^DUKTORES_TESTS:BOOL=(ON|$tests)$" "$carpeta/CMakeCache.txt" && [ -f "$carpeta/build.ninja" ]; } ||
      cmake --preset "$preset" -DDUKTORES_TESTS="$tests" -DDUKTORES_BENCH="$tests"
  } >"$carpeta/build.log" 2>&1 &&
    { ninja -C "$carpeta" -n "$@" | grep -q 'no work to do' || { echo "Building $carpeta" && cmake --build --preset "$preset" --target "$@" >>"$carpeta/build.log" 2>&1; }; } || {
    cat "$carpeta/build.log" >&2
    return 1
  }
}
