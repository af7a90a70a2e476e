// Any bytes as the template of a drawing.

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <memory>

#include "dxf/composicion.h"
#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "state/estado.h"
#include "state/fichero.h"
#include "state/guardado.h"

using namespace duktores;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  const std::string plantilla(reinterpret_cast<const char*>(datos), largo), antes = "as it was", ruta = CARPETA "a.dxf";
  estado = {};
  estado.sRutaPrograma = CARPETA;
  estado.iHandleDxf = 500;
  assert(EscribeFichero(RutaPlantilla(), plantilla) && EscribeFichero(ruta, antes));
  auto dibujo = std::make_shared<cDrawing>();
  cLine linea;
  linea.x2 = 1e6;
  linea.y1 = -0.5;
  dibujo->InsertLine(&linea);
  cDXF dxf;
  dxf.InsertEntities(dibujo);

  const bool guardado{dxf.Save(ruta)};
  const std::string fichero = LeeFichero(ruta).value();
  if (!guardado) {
    assert(fichero == antes);
    return 0;
  }
  // The template's lines, some of them rewritten, and the drawing's.
  const auto lineas = [](const std::string& texto) {
    return std::ranges::count(texto, '\n') + (texto.empty() || texto.ends_with('\n') ? 0 : 1);
  };
  assert(fichero.find("\r\n" + dibujo->GetEntities()) != std::string::npos);
  assert(lineas(fichero) == lineas(plantilla) + lineas(dibujo->GetEntities()));
  return 0;
}
