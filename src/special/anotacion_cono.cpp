#include "special/anotacion_cono.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "dxf/anotacion.h"
#include "geometry/planas.h"
#include "state/estado.h"

namespace duktores {

namespace {

bool EstaSobre(Punto2 p, Punto2 q) { return p.y > q.y + kNivel; }

// Glossary. I, F: the border elements, B their ends on the base rim, M on the other.
struct Bordes {
  Punto2 BI, BF, MI, MF;
};

// A vertical dimension at the x of `nivel`, `paso` away from it, with extension lines to its points.
void AcotaAltura(EWdraw& axew, double nivel, double paso, Punto2 p, Punto2 q) {
  const Punto2 pieP{nivel, p.y}, pieQ{nivel, q.y};
  Acota(axew, pieP, pieQ, {nivel + paso, p.y});
  Extiende(axew, pieP, p);
  Extiende(axew, pieQ, q);
}

void AcotaAlturas(EWdraw& axew, const Sector& sector, const Bordes& b) {
  const double columna = sector.vertice.value_or(b.BI).x;
  double izquierda = columna, derecha = columna;
  for (const auto* orilla : {&sector.base, &sector.boca}) {
    for (const Punto2 p : *orilla) {
      izquierda = std::min(izquierda, p.x);
      derecha = std::max(derecha, p.x);
    }
  }
  const bool crece = EstaSobre(b.MI, b.BI) && b.MI.x < b.MF.x - kNivel;
  AcotaAltura(axew, izquierda, -estado.dPasoTablaX, b.BI, crece ? b.MI : b.MF);
  AcotaAltura(axew, derecha, estado.dPasoTablaX, b.BF, crece ? b.MF : b.MI);
}

void AcotaBase(EWdraw& axew, const Sector& sector, const Bordes& b) {
  const double abajo = std::ranges::min(sector.base, {}, &Punto2::y).y;
  const Punto2 pieI{b.BI.x, abajo}, pieF{b.BF.x, abajo};
  Acota(axew, pieI, pieF, {pieI.x, abajo - estado.dPasoTablaY});
  Extiende(axew, pieI, b.BI);
  Extiende(axew, pieF, b.BF);
}

// Where the lines of the two border elements meet.
Punto2 Apice(const Bordes& b) {
  constexpr double kVertical = 1e9, kIgual = 1e-9;
  const auto pendiente = [](Punto2 p, Punto2 q) {
    return std::abs(q.x - p.x) <= kIgual ? kVertical : (q.y - p.y) / (q.x - p.x);
  };
  const double mF = pendiente(b.BF, b.MF), mI = pendiente(b.BI, b.MI);
  const Punto3 A = CorteRectas(mF, b.BF.y - mF * b.BF.x, b.BF.x, mI, b.BI.y - mI * b.BI.x, b.BI.x);
  return {A.x, A.y};
}

void AcotaApertura(EWdraw& axew, const Bordes& b, Punto2 A) {
  const double R = Distancia(A, b.BI);
  const bool enBase = R <= kNivel;
  const double desde = AnguloRecta(A, enBase ? b.MI : b.BI);
  double hasta = AnguloRecta(A, enBase ? b.MF : b.BF);
  DibujaArcoCota(axew, A.x, A.y, R / 2, desde, hasta, estado.dTamanoTexto, kColorCota);
}

// Each element's length stands on a line of its own over the element's.
void AcotaElementos(EWdraw& axew, const Sector& sector, Punto2 A) {
  for (std::size_t i = 0; i < sector.boca.size(); i += static_cast<std::size_t>(estado.MultinumDoblado)) {
    const Punto2 M = sector.boca[i];
    if (!EstaSobre(A, M)) continue;
    DibujaCota(axew, M.x, M.y, A.x, A.y, M.x, M.y - 5, estado.dTamanoTexto, kColorCota, "S");
    DibujaLinea(axew, A, M, kColorCota);
  }
}

void AcotaBoca(EWdraw& axew, const Bordes& b, std::optional<Punto2> A) {
  const bool sobreI = A && EstaSobre(*A, b.MI), sobreF = A && EstaSobre(*A, b.MF);
  const double nivel = sobreI ? A->y : std::max(b.MI.y, b.MF.y);
  const Punto2 pieI{b.MI.x, nivel}, pieF{b.MF.x, nivel};
  Acota(axew, pieI, pieF, {pieI.x, nivel + estado.dPasoTablaY});
  if (sobreI || b.MI.y < b.MF.y) {
    Extiende(axew, pieI, b.MI);
  } else {
    Extiende(axew, pieF, b.MF);
  }
  if (sobreF) Extiende(axew, {b.MF.x, A->y}, b.MF);
}

}  // namespace

bool Sector::Marcado(std::size_t i) const {
  return i == Ultimo() || i % static_cast<std::size_t>(estado.MultinumDoblado) == 0;
}

void DibujaDoblados(EWdraw& axew, const Sector& sector) {
  int numero = 1;
  for (std::size_t i = 0; i <= sector.Ultimo(); ++i) {
    if (!sector.Marcado(i)) continue;
    const Punto2 B = sector.base[i], M = sector.boca[i];
    if (i != 0 && i != sector.Ultimo()) DibujaLinea(axew, B, M, estado.iColorDoblez);
    const Punto2 medio = PuntoMedio(B, M);
    std::string texto = std::to_string(numero++);
    DibujaTexto(axew, medio.x, medio.y, texto, estado.dTamanoTexto, kColorNumero, 0);
  }
}

void GeneraCotaCono(EWdraw& axew, const Sector& sector) {
  const Bordes b{sector.base.front(), sector.base.back(), sector.boca.front(), sector.boca.back()};
  AcotaAlturas(axew, sector, b);
  AcotaBase(axew, sector, b);
  if (!sector.vertice) return AcotaBoca(axew, b, std::nullopt);
  const Punto2 A = Apice(b);
  AcotaApertura(axew, b, A);
  AcotaElementos(axew, sector, A);
  AcotaBoca(axew, b, A);
}

}  // namespace duktores
