#include "windows/filas_ajuste.h"

#include <array>

#include "piece/numeros_texto.h"

namespace duktores {

namespace {

using namespace texto;
using enum ClaseAjuste;

constexpr std::array kUnidades{kMilimetros, kPulgadas};
constexpr std::array kSuperficies{kSuperficieInterior, kSuperficieMedia, kSuperficieExterior};
constexpr std::array kDobleces{kNinguno, kLineasEnteras, kTrazos};

// clang-format off
constexpr int kPieza = kPiezasYDibujos;
const std::array kFilas{
    FilaAjuste{kPieza,   "LANGUAGE", "Language",      idioma,  kIdioma},
    FilaAjuste{kPieza,   "UNIT",     "Unit",          lista,   kUnidad,           kQueUnidad, 0, kUnidades},
    FilaAjuste{kPieza,   "DUCT",     "Thickness",     numero,  kEspesor,          kQueEspesor},
    FilaAjuste{kPieza,   "DUCT",     "Fiber",         lista,   kSuperficie,       kQueSuperficie, 1, kSuperficies, "1"},
    FilaAjuste{kPieza,   "DUCT",     "Density",       numero,  kDensidad,         kQueDensidad},
    FilaAjuste{kPieza,   "DUCT",     "Sizetxt",       numero,  kAlturaTextos,     kQueAltura, 0, {}, "10"},
    FilaAjuste{kPieza,   "DUCT",     "Dimensions",    siNo,    kCotas,            kQueCotas},
    FilaAjuste{kPieza,   "DUCT",     "Box",           siNo,    kCajetin,          kQueCajetin},
    FilaAjuste{kPieza,   "DUCT",     "BendColour",    numero,  kColorDoblez,      kQueColor},
    FilaAjuste{kPieza,   "DUCT",     "NDivi",         numero,  kDivisiones,       kQueDivisiones, 0, {}, "16"},
    FilaAjuste{kPieza,   "DUCT",     "Exact",         siNo,    kDesarrolloExacto, kQueExacto},
    FilaAjuste{kPieza,   "DUCT",     "Path",          carpeta, kCarpetaGuardado,  kQueCarpeta},
    FilaAjuste{kMaquina, "MACHINE",  "CutLayer",      nombre,  kCapaCorte},
    FilaAjuste{kMaquina, "MACHINE",  "BendUpLayer",   nombre,  kCapaArriba},
    FilaAjuste{kMaquina, "MACHINE",  "BendDownLayer", nombre,  kCapaAbajo},
    FilaAjuste{kMaquina, "MACHINE",  "MarkLayer",     nombre,  kCapaMarcas},
    FilaAjuste{kMaquina, "MACHINE",  "Bends",         lista,   kDoblecesCorte,    0, 0, kDobleces},
    FilaAjuste{kMaquina, "MACHINE",  "Marks",         siNo,    kNombreMarcado},
    FilaAjuste{kMaquina, "MACHINE",  "Tolerance",     numero,  kTolerancia},
    FilaAjuste{kMaquina, "MACHINE",  "LeastAngle",    numero,  kDoblezMinimo},
    FilaAjuste{kMaquina, "MACHINE",  "Arcs",          siNo,    kArcos},
    FilaAjuste{kMaquina, "MACHINE",  "Together",      siNo,    kUnFichero},
};
// clang-format on

}  // namespace

std::span<const FilaAjuste> FilasAjuste() { return kFilas; }

}  // namespace duktores
