# What ./test --long has beyond the tests: static checks and fuzzing, and the Debian packages for them.

PAQUETES_LARGO=(clang libclang-rt-dev llvm clang-tidy cppcheck freecad)

# analiza FOLDER: clang-tidy, by the compile commands of the build in FOLDER, and cppcheck find nothing.
analiza() {
  local carpetas=(src tools fuzz)
  echo "clang-tidy and cppcheck on ${carpetas[*]}"
  find "${carpetas[@]}" -name '*.cpp' -print0 |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$1" 2>"$1/clang-tidy.log"
  # Points are small enough to be passed by value.
  cppcheck --quiet --error-exitcode=1 --std=c++20 --enable=warning,performance,portability --suppress=passedByValue \
    --library=posix,qt -j "$(nproc)" -I src -I tools -I fuzz "${carpetas[@]}"
}

# fallos PRESET: every call and every allocation of a save fails once, and the program is killed at every call.
fallos() {
  echo "Every failure of a save"
  /usr/bin/python3 -B tests/batch/fallos_test.py "build/$1/root/Duct/duktores-batch" Samples/pieces.json \
    "build/$1/tests/libfalla.so" long
}

# caras PRESET: another program makes one face of each cut file.
caras() {
  echo "A face of each cut file"
  QT_QPA_PLATFORM=offscreen /usr/bin/python3 -B tests/batch/caras_test.py "build/$1/root/Duct/duktores-batch" \
    Samples/pieces.json none
}

# ventanas PRESET SECONDS: a storm over the windows.
ventanas() {
  echo "A storm of $2 seconds over the windows"
  DUKTORES_TORMENTA=$2 timeout $((2 * $2)) "build/$1/tests/test_windows" --gtest_filter='Tormenta.*' --gtest_brief=1
}

# fuzz SECONDS: runs each target that long from its seeds and from what earlier runs have added to build/fuzz/finds,
# where an input that fails stays too.
fuzz() {
  local semillas objetivo hallado
  construye fuzz OFF fuzz
  for semillas in fuzz/corpus/*; do
    objetivo=${semillas##*/}
    hallado=build/fuzz/finds/$objetivo
    mkdir -p "$hallado"
    build/fuzz/fuzz/fuzz_"$objetivo" -max_total_time="$1" -max_len=1024 -timeout=20 -artifact_prefix="$hallado-" \
      "$hallado" "$semillas" >"$hallado.log" 2>&1 || {
      grep -v '^#' "$hallado.log" >&2
      return 1
    }
    echo "Fuzzing $objetivo: $(grep '^Done' "$hallado.log")"
  done
}
