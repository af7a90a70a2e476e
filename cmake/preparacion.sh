# Shared by ./run and ./test: the Debian packages that they need, and a quiet build.

PAQUETES_PROGRAMA=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libxcb1-dev libcli11-dev nlohmann-json3-dev fonts-wqy-microhei)
PAQUETES_TESTS=(libgtest-dev libbenchmark-dev python3-ezdxf xvfb openbox xdotool)

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

# construye PRESET TARGET...: configures once and builds; silent unless something fails or is built.
construye() {
  local preset=$1 registro=build/$1/build.log
  shift
  mkdir -p "build/$preset"
  {
    { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
      { ninja -C "build/$preset" -n "$@" | grep -q 'no work to do' || { echo "Building build/$preset" >&2 && cmake --build --preset "$preset" --target "$@"; }; }
  } >"$registro" || {
    cat "$registro" >&2
    return 1
  }
}
