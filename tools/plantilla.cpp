// plantilla OUT: writes the template of the drawings to the file OUT.

#include <cstdio>
#include <fstream>

#include "plantilla_texto.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: plantilla OUT\n", stderr);
    return 2;
  }
  std::ofstream fichero(argv[1], std::ios::binary);
  fichero << duktores::TextoPlantilla();
  fichero.close();
  if (fichero) return 0;
  std::fprintf(stderr, "plantilla: can't write %s\n", argv[1]);
  return 1;
}
