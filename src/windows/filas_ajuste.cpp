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

constexpr Limites kHasta100{0, 100, 0}, kHasta1000{0.01, 1000, 0};

// clang-format off
constexpr int kPieza = kPiezasYDibujos;
// Without a configuration the proposals are those of the one that an installation brings.
const std::array kFilas{
    FilaAjuste{kPieza,   "LANGUAGE", "Language",      idioma,  kIdioma,           kQueIdioma},
    FilaAjuste{kPieza,   "UNIT",     "Unit",          lista,   kUnidad,           kQueUnidad, 0, kUnidades},
    FilaAjuste{kPieza,   "DUCT",     "Thickness",     numero,  kEspesor,          kQueEspesor, 0, {}, "1", kHasta100},
    FilaAjuste{kPieza,   "DUCT",     "Fiber",         lista,   kSuperficie,       kQueSuperficie, 1, kSuperficies, "1"},
    FilaAjuste{kPieza,   "DUCT",     "Density",       numero,  kDensidad,         kQueDensidad, 0, {}, "7.85"},
    FilaAjuste{kPieza,   "DUCT",     "Sizetxt",       numero,  kAlturaTextos,     kQueAltura, 0, {}, "10", kHasta1000},
    FilaAjuste{kPieza,   "DUCT",     "Dimensions",    siNo,    kCotas,            kQueCotas, 0, {}, "1"},
    FilaAjuste{kPieza,   "DUCT",     "Box",           siNo,    kCajetin,          kQueCajetin, 0, {}, "1"},
    FilaAjuste{kPieza,   "DUCT",     "BendColour",    numero,  kColorDoblez,      kQueColor, 0, {}, "3"},
    FilaAjuste{kPieza,   "DUCT",     "NDivi",         numero,  kDivisiones,       kQueDivisiones, 0, {}, "16"},
    FilaAjuste{kPieza,   "DUCT",     "Exact",         siNo,    kDesarrolloExacto, kQueExacto},
    FilaAjuste{kPieza,   "DUCT",     "Path",          carpeta, kCarpetaGuardado,  kQueCarpeta},
    FilaAjuste{kMaquina, "MACHINE",  "CutLayer",      nombre,  kCapaCorte,        kQueCapaCorte},
    FilaAjuste{kMaquina, "MACHINE",  "BendUpLayer",   nombre,  kCapaArriba,       kQueCapaArriba},
    FilaAjuste{kMaquina, "MACHINE",  "BendDownLayer", nombre,  kCapaAbajo,        kQueCapaAbajo},
    FilaAjuste{kMaquina, "MACHINE",  "MarkLayer",     nombre,  kCapaMarcas,       kQueCapaMarcas},
    FilaAjuste{kMaquina, "MACHINE",  "Bends",         lista,   kDoblecesCorte,    kQueDobleces, 0, kDobleces},
    FilaAjuste{kMaquina, "MACHINE",  "Marks",         siNo,    kNombreMarcado,    kQueNombre},
    FilaAjuste{kMaquina, "MACHINE",  "Tolerance",     numero,  kTolerancia,       kQueTolerancia},
    FilaAjuste{kMaquina, "MACHINE",  "LeastAngle",    numero,  kDoblezMinimo,     kQueDoblezMinimo},
    FilaAjuste{kMaquina, "MACHINE",  "Arcs",          siNo,    kArcos,            kQueArcos},
    FilaAjuste{kMaquina, "MACHINE",  "Together",      siNo,    kUnFichero,        kQueUnFichero},
};
// clang-format on

}  // namespace

std::span<const FilaAjuste> FilasAjuste() { return kFilas; }

}  // namespace duktores
