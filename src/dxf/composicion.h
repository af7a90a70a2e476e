#pragma once
// A DXF file from a template: its lines are copied, some of them replaced, and the entities go behind the line
// "ENTITIES". The file is in code page 1252 with CR LF line ends.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "state/guardado.h"

namespace duktores {

/// Copies `lineas` lines and writes `valor` in place of the one after them.
struct Sustitucion {
  int lineas;
  std::string valor;
};

/// What becomes of a line that reads like `marca` in any mix of case, and of those that follow on it.
struct Reemplazo {
  std::string_view marca;
  std::vector<Sustitucion> sustituciones;
  std::optional<std::string> propia{};  ///< what stands in place of the line itself
};

/// A template of the installation: its file, and the layers that it has besides layer 0.
struct PlantillaDxf {
  std::string_view fichero;
  std::span<const std::string_view> capas;
};
inline constexpr std::string_view kCapasDibujo[]{"DUCT"}, kCapasCorte[]{"CUT", "BEND_UP", "BEND_DOWN", "MARK"},
    kCapasChapa[]{"CUT", "BEND_UP", "BEND_DOWN", "MARK", "SHEET"};
inline constexpr PlantillaDxf kPlantillaDibujo{"Template.dxf", kCapasDibujo}, kPlantillaCorte{"Cut.dxf", kCapasCorte},
    kPlantillaChapa{"Sheet.dxf", kCapasChapa};

/// Its full path.
std::string RutaPlantilla(const PlantillaDxf& plantilla = kPlantillaDibujo);
/// Whether it stands, can take a drawing and is a drawing itself; else what is wrong with it.
Guardado RevisaPlantilla(const PlantillaDxf& plantilla = kPlantillaDibujo);

/// The whole file, or what is wrong with the template.
Guardado ComponeDxf(const PlantillaDxf& plantilla, const std::vector<Reemplazo>& reemplazos, std::string_view entidades,
                    std::string& fichero);

}  // namespace duktores
