#include "special/sector.h"

#include "piece/numeros_texto.h"

namespace duktores {

namespace {

// Which vertices stand for which elements of the corner. In the outline the base rim runs from left to right and the
// other one back.
struct Lugares {
  const Sector& sector;
  const OrdenEspecial& orden;
  int c;

  int Ultimo() const { return static_cast<int>(sector.base.size()) - 1; }
  int Elemento(int i) const { return sector.alDerecho ? i : orden.q - i; }
  int EnBase(int i) const { return i; }
  int EnBoca(int i) const { return 2 * Ultimo() + 1 - i; }
  int EnBajo(int p) const { return sector.bCambio ? EnBoca(Elemento(p)) : EnBase(Elemento(p)); }
  int EnCorte(int p) const { return sector.bCambio ? EnBase(Elemento(p)) : EnBoca(Elemento(p)); }
};

void PonContorno(FormaPatron& f, const Lugares& l, bool conocido) {
  const auto pon = [&](const std::vector<Punto2>& orilla, int i, bool corte) {
    const int punto = conocido ? l.orden.Punto(l.c, l.Elemento(i), corte) : -1;
    f.contorno.push_back({orilla[static_cast<std::size_t>(i)], punto});
  };
  f.contorno.reserve(2 * l.sector.base.size() + 1);
  for (int i = 0; i <= l.Ultimo(); ++i) pon(l.sector.base, i, l.sector.bCambio);
  for (int i = l.Ultimo(); i >= 0; --i) pon(l.sector.boca, i, !l.sector.bCambio);
  f.contorno.push_back(f.contorno.front());
}

// The marked elements: both borders, and one to each division between them.
void PonLineas(FormaPatron& f, const Lugares& l, bool conocido) {
  for (int i = 0; i <= l.Ultimo(); ++i) {
    const bool borde = i == 0 || i == l.Ultimo();
    if (!borde && i % kPasosPorDivision != 0) continue;
    const auto k = static_cast<std::size_t>(i);
    Linea& linea = f.lineas.emplace_back();
    linea = {l.sector.base[k], l.sector.boca[k], borde ? Clase::borde : Clase::doblez, l.EnBase(i), l.EnBoca(i)};
    if (borde || !conocido) continue;
    const int tira = l.Elemento(i) / kPasosPorDivision;
    linea.caras = {l.orden.Tira(l.c, tira), l.orden.Tira(l.c, tira - 1)};
    if (l.sector.alDerecho) std::swap(linea.caras[0], linea.caras[1]);
  }
}

// Seen from outside the later element lies at the left. Where the cut passes below the base everything is upside down.
void PonFacetas(FormaPatron& f, const Lugares& l, const Solido& solido) {
  const auto bajoCero = [&](int p) {
    return solido.puntos[static_cast<std::size_t>(l.orden.Punto(l.c, p, true))].z < 0;
  };
  f.facetas.reserve(static_cast<std::size_t>(2 * l.orden.q));
  for (int p = 0; p < l.orden.q; ++p) {
    const int b = l.EnBajo(p), b1 = l.EnBajo(p + 1), c = l.EnCorte(p), c1 = l.EnCorte(p + 1);
    const int cara = l.orden.Tira(l.c, p / kPasosPorDivision);
    f.facetas.push_back({bajoCero(p) ? std::array{b, c1, c} : std::array{b, c, c1}, cara});
    f.facetas.push_back({bajoCero(p + 1) ? std::array{b, b1, c1} : std::array{b, c1, b1}, cara});
  }
}

}  // namespace

FormaPatron FormaEsquina(const std::optional<Sector>& sector, int c, const Solido& solido, const OrdenEspecial& orden) {
  FormaPatron f;
  f.nombre = {Forma::esquina, c};
  f.aviso = texto::kColocarPieza;
  f.rotulo = texto::kEsquina;
  if (!sector) return f;
  const Lugares l{*sector, orden, c};
  const bool conocido = l.Ultimo() == orden.q;
  PonContorno(f, l, conocido);
  PonLineas(f, l, conocido);
  f.ancla = sector->ancla;
  f.cotas = CotasSector{sector->vertice, kPasosPorDivision};
  if (!conocido) return f;
  PonFacetas(f, l, solido);
  f.antes = {l.EnBajo(0), l.EnCorte(0)};
  f.despues = {l.EnBajo(orden.q), l.EnCorte(orden.q)};
  return f;
}

}  // namespace duktores
