// plantilla DIR: writes the templates of the drawings, cut files and sheets into the folder DIR.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "plantilla_texto.h"

int main(int argc, char** argv) {
  using duktores::Plantilla;
  if (argc != 2) {
    std::fputs("usage: plantilla DIR\n", stderr);
    return 2;
  }
  for (const auto& [cual, nombre] :
       {std::pair(Plantilla::dibujo, "Template.dxf"), {Plantilla::corte, "Cut.dxf"}, {Plantilla::chapa, "Sheet.dxf"}}) {
    const auto ruta = std::filesystem::path(argv[1]) / nombre;
    std::ofstream fichero(ruta, std::ios::binary);
    fichero << duktores::TextoPlantilla(cual);
    fichero.close();
    if (fichero) continue;
    std::fprintf(stderr, "plantilla: can't write %s\n", ruta.c_str());
    return 1;
  }
  return 0;
}
