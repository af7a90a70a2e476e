#include "sheet/cotas_forma.h"

#include <algorithm>
#include <cmath>

#include "annotation/anotacion.h"
#include "geometry/planas.h"

namespace duktores {

namespace {

// ---- Rows of a table.

void DibujaFilas(EWdraw& axew, const CotasFilas& cotas, const FormatoHoja& formato) {
  const auto& p = cotas.puntos;
  for (const FilaCota& fila : cotas.filas) {
    if (fila.pasos == 0) continue;
    if (fila.eje == Eje::H) {
      const double y = p[fila.base].y;
      const Punto2 de{p[fila.de].x, y}, a{p[fila.a].x, y};
      Acota(axew, formato.altura, de, a, {de.x, p[fila.nivel].y + fila.pasos * formato.pasoY});
    } else {
      const double x = p[fila.base].x;
      const Punto2 de{x, p[fila.de].y}, a{x, p[fila.a].y};
      Acota(axew, formato.altura, de, a, {p[fila.nivel].x + fila.pasos * formato.pasoX, de.y});
    }
    for (const auto [x1, y1, x2, y2] : fila.extensiones) Extiende(axew, {p[x1].x, p[y1].y}, {p[x2].x, p[y2].y});
  }
}

// ---- A sector.

struct SectorAcotado {
  const FormaPatron& forma;
  const CotasSector& cotas;
  const FormatoHoja& formato;

  int Ultimo() const { return static_cast<int>(forma.contorno.size()) / 2 - 1; }
  Punto2 Base(int i) const { return forma.En(i); }
  Punto2 Boca(int i) const { return forma.En(2 * Ultimo() + 1 - i); }
};

bool EstaSobre(Punto2 p, Punto2 q) { return p.y > q.y + kNivel; }

// Glossary. I, F: the border elements, B their ends on the base rim, M on the other.
struct Bordes {
  Punto2 BI, BF, MI, MF;
};

// A vertical dimension at the x of `nivel`, `paso` away from it, with extension lines to its points.
void AcotaAltura(EWdraw& axew, double altura, double nivel, double paso, Punto2 p, Punto2 q) {
  const Punto2 pieP{nivel, p.y}, pieQ{nivel, q.y};
  Acota(axew, altura, pieP, pieQ, {nivel + paso, p.y});
  Extiende(axew, pieP, p);
  Extiende(axew, pieQ, q);
}

void AcotaAlturas(EWdraw& axew, const SectorAcotado& sector, const Bordes& b) {
  const double columna = sector.cotas.vertice.value_or(b.BI).x;
  double izquierda = columna, derecha = columna;
  for (const Vertice& v : sector.forma.contorno) {
    izquierda = std::min(izquierda, v.p.x);
    derecha = std::max(derecha, v.p.x);
  }
  const bool crece = EstaSobre(b.MI, b.BI) && b.MI.x < b.MF.x - kNivel;
  AcotaAltura(axew, sector.formato.altura, izquierda, -sector.formato.pasoX, b.BI, crece ? b.MI : b.MF);
  AcotaAltura(axew, sector.formato.altura, derecha, sector.formato.pasoX, b.BF, crece ? b.MF : b.MI);
}

void AcotaBase(EWdraw& axew, const SectorAcotado& sector, const Bordes& b) {
  double abajo = b.BI.y;
  for (int i = 0; i <= sector.Ultimo(); ++i) abajo = std::min(abajo, sector.Base(i).y);
  const Punto2 pieI{b.BI.x, abajo}, pieF{b.BF.x, abajo};
  Acota(axew, sector.formato.altura, pieI, pieF, {pieI.x, abajo - sector.formato.pasoY});
  Extiende(axew, pieI, b.BI);
  Extiende(axew, pieF, b.BF);
}

// Where the lines of the two border elements meet.
Punto2 Apice(const Bordes& b) {
  constexpr double kIgual = 1e-9;
  const auto pendiente = [](Punto2 p, Punto2 q) {
    return std::abs(q.x - p.x) <= kIgual ? kVertical : (q.y - p.y) / (q.x - p.x);
  };
  const double mF = pendiente(b.BF, b.MF), mI = pendiente(b.BI, b.MI);
  const Punto3 A = CorteRectas(mF, b.BF.y - mF * b.BF.x, b.BF.x, mI, b.BI.y - mI * b.BI.x, b.BI.x);
  return {A.x, A.y};
}

void AcotaApertura(EWdraw& axew, const FormatoHoja& formato, const Bordes& b, Punto2 A) {
  const double R = Distancia(A, b.BI);
  const bool enBase = R <= kNivel;
  const double desde = AnguloRecta(A, enBase ? b.MI : b.BI);
  double hasta = AnguloRecta(A, enBase ? b.MF : b.BF);
  DibujaArcoCota(axew, A.x, A.y, R / 2, desde, hasta, formato.altura, kColorCota);
}

// Each element's length stands on a line of its own over the element's.
void AcotaElementos(EWdraw& axew, const SectorAcotado& sector, Punto2 A) {
  for (int i = 0; i <= sector.Ultimo(); i += sector.cotas.paso) {
    const Punto2 M = sector.Boca(i);
    if (!EstaSobre(A, M)) continue;
    DibujaCota(axew, M.x, M.y, A.x, A.y, M.x, M.y - 5, sector.formato.altura, kColorCota, "S");
    DibujaLinea(axew, A, M, kColorCota);
  }
}

void AcotaBoca(EWdraw& axew, const FormatoHoja& formato, const Bordes& b, std::optional<Punto2> A) {
  const bool sobreI = A && EstaSobre(*A, b.MI), sobreF = A && EstaSobre(*A, b.MF);
  const double nivel = sobreI ? A->y : std::max(b.MI.y, b.MF.y);
  const Punto2 pieI{b.MI.x, nivel}, pieF{b.MF.x, nivel};
  Acota(axew, formato.altura, pieI, pieF, {pieI.x, nivel + formato.pasoY});
  if (sobreI || b.MI.y < b.MF.y) {
    Extiende(axew, pieI, b.MI);
  } else {
    Extiende(axew, pieF, b.MF);
  }
  if (sobreF) Extiende(axew, {b.MF.x, A->y}, b.MF);
}

void GeneraCotaCono(EWdraw& axew, const SectorAcotado& sector) {
  const Bordes b{sector.Base(0), sector.Base(sector.Ultimo()), sector.Boca(0), sector.Boca(sector.Ultimo())};
  AcotaAlturas(axew, sector, b);
  AcotaBase(axew, sector, b);
  if (!sector.cotas.vertice) return AcotaBoca(axew, sector.formato, b, std::nullopt);
  const Punto2 A = Apice(b);
  AcotaApertura(axew, sector.formato, b, A);
  AcotaElementos(axew, sector, A);
  AcotaBoca(axew, sector.formato, b, A);
}

// ---- A panel.

void GeneraCotaPanel(EWdraw& axew, const FormaPatron& forma, const FormatoHoja& formato) {
  const Punto2 A = forma.En(0), B = forma.En(1), C = forma.En(2), D = forma.En(3);
  const double dx = formato.pasoX, dy = formato.pasoY;
  const double izquierda = std::min(B.x, C.x), abajo = std::min(C.y, D.y), derecha = std::max(A.x, D.x);
  Acota(axew, formato.altura, {A.x, B.y}, {B.x, B.y}, {A.x, B.y + dy});
  Acota(axew, formato.altura, {izquierda, B.y}, {izquierda, C.y}, {izquierda - dx, B.y});
  B.x > C.x + kNivel ? Extiende(axew, B, {C.x, B.y}) : Extiende(axew, {B.x, C.y}, C);
  Acota(axew, formato.altura, {C.x, abajo}, {D.x, abajo}, {C.x, abajo - dy});
  C.y > D.y + kNivel ? Extiende(axew, C, {C.x, D.y}) : Extiende(axew, {D.x, C.y}, D);
  Acota(axew, formato.altura, {derecha, A.y}, {derecha, D.y}, {derecha + dx, A.y});
  A.x > D.x + kNivel ? Extiende(axew, {A.x, D.y}, D) : Extiende(axew, A, {D.x, A.y});
}

}  // namespace

void Mueve(ReglaCotas& cotas, Punto2 mas) {
  if (auto* filas = std::get_if<CotasFilas>(&cotas)) {
    for (Punto2& p : filas->puntos) p = p + mas;
  }
  if (auto* sector = std::get_if<CotasSector>(&cotas); sector && sector->vertice) {
    sector->vertice = *sector->vertice + mas;
  }
}

void DibujaCotas(EWdraw& axew, const FormaPatron& forma, const FormatoHoja& formato) {
  if (const auto* filas = std::get_if<CotasFilas>(&forma.cotas)) DibujaFilas(axew, *filas, formato);
  if (const auto* sector = std::get_if<CotasSector>(&forma.cotas)) GeneraCotaCono(axew, {forma, *sector, formato});
  if (std::holds_alternative<CotasPanel>(forma.cotas)) GeneraCotaPanel(axew, forma, formato);
}

}  // namespace duktores
