#include "nest/silueta.h"

#include <algorithm>
#include <cmath>

#include "geometry/planas.h"

namespace duktores {

namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

constexpr double kSobra = 11;  // units, for all that is rounded between here and the sheet

Punto2 EnReales(IntPoint p) { return {static_cast<double>(p.X), static_cast<double>(p.Y)}; }

Path Mayor(const Paths& contornos) {
  const auto area = [](const Path& p) { return ClipperLib::Area(p); };
  const auto mayor = std::ranges::max_element(contornos, {}, area);
  return mayor == contornos.end() ? Path() : *mayor;
}

Path Holgada(const Path& contorno, double cuanto) {
  constexpr double kPunta = 2;  // a point is cut off where it would stand out further than so many times the distance
  ClipperLib::ClipperOffset paralela(kPunta);
  paralela.AddPath(contorno, ClipperLib::jtMiter, ClipperLib::etClosedPolygon);
  Paths salida;
  paralela.Execute(salida, cuanto);
  return Mayor(salida);
}

// Of the vertices between two that stay those stay that lie further than the tolerance from the line between.
void Aclara(const Path& contorno, std::size_t desde, std::size_t hasta, double tolerancia, std::vector<bool>& queda) {
  const std::size_t n = contorno.size();
  double lejos = tolerancia;
  std::optional<std::size_t> cual;
  for (std::size_t i = desde + 1; i < hasta; ++i) {
    const double d =
        DistanciaASegmento(EnReales(contorno[i]), EnReales(contorno[desde]), EnReales(contorno[hasta % n]));
    if (d > lejos) {
      lejos = d;
      cual = i;
    }
  }
  if (!cual) return;
  queda[*cual] = true;
  Aclara(contorno, desde, *cual, tolerancia, queda);
  Aclara(contorno, *cual, hasta, tolerancia, queda);
}

// An outline that lies further out by the tolerance has no point of the first one left outside when no vertex goes that
// lies further than this from what stays.
Path Adelgazada(const Path& contorno, double holgura, double tolerancia) {
  const Path fuera = Holgada(contorno, holgura + tolerancia);
  if (fuera.size() < 3) return {};
  std::size_t lejos = 0;
  const auto desdePrimero = [&](std::size_t i) { return Distancia(EnReales(fuera[i]), EnReales(fuera[0])); };
  for (std::size_t i = 1; i < fuera.size(); ++i) lejos = desdePrimero(i) > desdePrimero(lejos) ? i : lejos;
  std::vector<bool> queda(fuera.size());
  queda[0] = queda[lejos] = true;
  Aclara(fuera, 0, lejos, tolerancia, queda);
  Aclara(fuera, lejos, fuera.size(), tolerancia, queda);
  Path fina;
  for (std::size_t i = 0; i < fuera.size(); ++i) {
    if (queda[i]) fina.push_back(fuera[i]);
  }
  Paths simples;
  ClipperLib::Clipper union_(ClipperLib::ioStrictlySimple);
  union_.AddPath(fina, ClipperLib::ptSubject, true);
  union_.Execute(ClipperLib::ctUnion, simples, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
  return Mayor(simples);
}

}  // namespace

void Extremos::Incluye(Punto2 p) {
  desde = {std::min(desde.x, p.x), std::min(desde.y, p.y)};
  hasta = {std::max(hasta.x, p.x), std::max(hasta.y, p.y)};
}

Extremos ExtremosDe(const Path& contorno) {
  Extremos caja;
  for (const IntPoint p : contorno) caja.Incluye(EnReales(p));
  return caja;
}

Path Girado(const Path& contorno, double grados) {
  const Giro giro(grados);
  Path girado;
  for (const IntPoint p : contorno) {
    const Punto2 q = giro(EnReales(p));
    const IntPoint r(std::llround(q.x), std::llround(q.y));
    if (girado.empty() || girado.back() != r) girado.push_back(r);
  }
  while (girado.size() > 1 && girado.back() == girado.front()) girado.pop_back();
  return girado;
}

std::optional<Silueta> SiluetaDe(const std::vector<Punto2>& contorno, double hueco, double milimetro) {
  constexpr std::size_t kVertices = 24;
  constexpr double kFina = 100, kGruesa = 0.016;  // tolerances: units, and by how much of itself a part may grow
  const double escala = kPorMilimetro / milimetro;
  Path entero;
  for (const Punto2 p : contorno) {
    const Punto2 q = escala * p;
    if (!(std::abs(q.x) <= kLargoMaximo && std::abs(q.y) <= kLargoMaximo)) return std::nullopt;
    entero.emplace_back(std::llround(q.x), std::llround(q.y));
  }
  if (contorno.size() < 3 || !(AreaDe(contorno) > 0)) return std::nullopt;
  if (!ClipperLib::Orientation(entero)) ClipperLib::ReversePath(entero);
  // Whatever the outline does, nothing of it may stay outside.
  Paths simples;
  ClipperLib::SimplifyPolygon(entero, simples, ClipperLib::pftNonZero);
  const Path base = Mayor(simples);
  double rodeo = 0;
  for (std::size_t i = 0; i < base.size(); ++i)
    rodeo += Distancia(EnReales(base[i]), EnReales(base[(i + 1) % base.size()]));
  const double grueso = rodeo > 0 ? ClipperLib::Area(base) / rodeo : 0, holgura = escala * hueco / 2 + kSobra;
  Silueta silueta;
  for (double tolerancia = 0; silueta.contorno.empty() || silueta.contorno.size() > kVertices;
       tolerancia = std::max(kFina, 2 * tolerancia)) {
    Path fina = Adelgazada(base, holgura, tolerancia);
    if (fina.size() < 3) return std::nullopt;
    silueta.contorno = std::move(fina);
    if (2 * tolerancia > kGruesa * grueso) break;
  }
  silueta.area = AreaDe(contorno) * escala * escala;
  return silueta;
}

}  // namespace duktores
