// Runs a fuzz target once on every file of a folder, without the fuzzer. Usage: PROGRAM FOLDER

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "state/fichero.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);

int main(int argc, char** argv) {
  int ficheros = 0;
  if (argc == 2) {
    for (const auto& entrada : std::filesystem::directory_iterator(argv[1])) {
      const std::string datos = duktores::LeeFichero(entrada.path()).value();
      std::cout << entrada.path() << std::endl;  // stands last if it crashes
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(datos.data()), datos.size());
      ++ficheros;
    }
  }
  return ficheros > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
