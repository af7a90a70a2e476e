#include "engines/cotas_transicion.h"

#include <algorithm>
#include <array>
#include <utility>

namespace duktores {

namespace {

using enum Eje;

// What a row names. FM is F(h+1), FN F(N+1), B the low end of the split line; Min and Max hold the levels. Izq is the
// one further left of C(1) and F(1), Der the one further right of C(6) and F(N+1), and IzqOtro, DerOtro are the others.
enum Nombrado : Ref { F1, FM, FN, C1, C2, C3, C4, C5, C6, B, Min, Max, Izq, IzqOtro, Der, DerOtro, kNombrados };

constexpr Extension HastaX(Ref punto, Ref nivel) { return {punto, punto, nivel, punto}; }
constexpr Extension HastaY(Ref punto, Ref nivel) { return {punto, punto, punto, nivel}; }

// clang-format off
constexpr FilaCota kCotas[]{
    {H, F1, FN, Max, Max,  1, {HastaY(F1, Max), HastaY(FN, Max)}},
    {H, C1, C2, Min, Min, -2, {HastaY(C1, Min), HastaY(C2, Min)}},
    {V, C1, C2, Min, Min, -1, {HastaX(C1, Min), HastaX(C2, Min)}},
    {H, C2, C3, C3,  Min, -1, {Extension{Min, C3, Min, C2}}},
    {V, C3, C2, Min, Min, -1, {HastaX(C3, Min), HastaX(C2, Min)}},
    {V, C1, F1, Izq, Min, -2, {HastaX(IzqOtro, Min)}},
    {H, C3, C4, C3,  Min, -1},
    {H, C1, C6, Min, Min, -3},
    {H, C4, C5, C4,  Min, -1, {HastaY(C5, C4)}},
    {V, C4, C5, C5,  Max,  1, {Extension{C5, C4, C4, C4}}},
    {V, C6, FN, Der, Max,  2, {HastaX(DerOtro, Max)}},
    {H, C5, C6, Min, Min, -2, {HastaY(C5, Min), HastaY(C6, Min)}},
    {V, C5, C6, Max, Max,  1, {HastaX(C6, Max), HastaX(C5, Max)}},
};
constexpr FilaCota kCotasCircular[]{
    {H, F1, FN, Max, Max,  1, {HastaY(F1, Max), HastaY(FN, Max)}},
    {H, C1, C6, Min, Min, -2, {HastaY(C1, Min), HastaY(C6, Min)}},
    {H, C1, C2, C1,  Min, -1},
    {V, C1, F1, Min, Min, -2, {HastaX(C1, Min), HastaX(F1, Min)}},
    {V, C6, FN, Max, Max,  2, {HastaX(C6, Max), HastaX(FN, Max)}},
    {V, C1, C2, Min, Min, -1, {HastaX(C2, Min), HastaX(C1, Min)}},
    {H, C2, C3, Min, Min, -1, {HastaY(C2, Min), HastaY(C3, Min)}},
    {V, C2, C3, Min, Min, -1, {HastaX(C3, Min), HastaX(C2, Min)}},
    {H, C3, C4, C3,  Min, -1},
    {H, C4, C5, Min, Min, -1, {HastaY(C5, Min)}},
    {V, C4, C5, C5,  Max,  1, {HastaX(C4, Max), HastaX(C5, Max)}},
    {H, C5, C6, Min, Min, -1},
    {V, C5, C6, Max, Max,  1, {HastaX(C6, Max), HastaX(C5, Max)}},
};
constexpr FilaCota kCotasPieza1[]{
    {H, F1, FM, Max, Max,  3, {HastaY(F1, Max), HastaY(FM, Max)}},
    {H, C1, B,  Min, Min, -3, {HastaY(C1, Min), HastaY(B, Min)}},
    {H, C1, C2, Min, Min, -2},
    {V, C1, F1, Min, Min, -2, {HastaX(C1, Min), HastaX(F1, Min)}},
    {V, C4, FM, Max, Max,  1, {Extension{B, C4, Max, C4}, HastaX(FM, Max)}},
    {V, C1, C2, Min, Min, -1, {HastaX(C2, Min), HastaX(C1, Min)}},
    {H, C2, C3, Min, Min, -1, {HastaY(C2, Min), HastaY(C3, Min)}},
    {V, C2, C3, Min, Min, -2.0 / 3, {HastaX(C3, Min), HastaX(C2, Min)}},
    {H, C3, B,  Min, Min, -1},
};
constexpr FilaCota kCotasPieza2[]{
    {H, FM, FN, Max, Max,  1, {HastaY(FM, Max), HastaY(FN, Max)}},
    {H, B,  C6, Min, Min, -3, {HastaY(C6, Min), HastaY(B, Min)}},
    {V, C4, FM, Min, Min, -1, {HastaX(FM, Min)}},
    {V, C6, FN, Max, Max,  2, {HastaX(C6, Max), HastaX(FN, Max)}},
    {V, C6, C5, Max, Max,  1, {HastaX(C6, Max), HastaX(C5, Max)}},
    {H, C4, C5, Min, Min, -1, {HastaY(C4, Min), HastaY(C5, Min)}},
    {V, C4, C5, Max, Max,  2.0 / 3, {HastaX(C5, Max), HastaX(C4, Max)}},
    {H, C5, C6, Min, Min, -2},
    {H, C4, B,  Min, Min, -1, {HastaY(C4, Min), HastaY(B, Min)}},
};
// clang-format on

// Above a circular base other widths stand at other levels: each row of these is that of the table before with other
// steps.
template <std::size_t n>
constexpr std::array<FilaCota, n> Circular(const FilaCota (&filas)[n],
                                           std::array<std::pair<std::size_t, double>, 2> pasos, std::size_t fuera) {
  std::array<FilaCota, n> otras{};
  std::copy(std::begin(filas), std::end(filas), otras.begin());
  for (const auto& [i, otros] : pasos) otras[i].pasos = otros;
  otras[fuera].pasos = 0;
  return otras;
}
constexpr auto kCotasPieza1Circular = Circular(kCotasPieza1, {{{0, 1}, {1, -2}}}, 2);
constexpr auto kCotasPieza2Circular = Circular(kCotasPieza2, {{{0, 1}, {1, -2}}}, 7);

std::span<const FilaCota> Filas(Parte parte, ListaCotas lista) {
  const bool circular = lista == ListaCotas::baseCircular;
  switch (parte) {
    case Parte::primera:
      return circular ? std::span<const FilaCota>(kCotasPieza1Circular) : kCotasPieza1;
    case Parte::segunda:
      return circular ? std::span<const FilaCota>(kCotasPieza2Circular) : kCotasPieza2;
    case Parte::entera:
      break;
  }
  return circular ? std::span<const FilaCota>(kCotasCircular) : kCotas;
}

// The second piece counts the last point and corner of the first one too, but its left level is the split line's end.
void PonNiveles(std::vector<Punto2>& puntos, const Transicion& t, Parte parte) {
  const int N = t.dPuntosPlano.Cuenta() - 1, h = N / 2;
  const bool primera = parte == Parte::primera, segunda = parte == Parte::segunda;
  Punto2 minimo{99999, 99999}, maximo{-99999, -99999};
  const auto incluye = [&](Punto2 p) {
    minimo = {std::min(minimo.x, p.x), std::min(minimo.y, p.y)};
    maximo = {std::max(maximo.x, p.x), std::max(maximo.y, p.y)};
  };
  for (int k = segunda ? h : 1; k <= (primera ? h + 1 : N + 1); ++k) incluye(t.dPuntosPlano(k));
  for (int j = segunda ? 3 : 1; j <= (primera ? 3 : 6); ++j) incluye(t.dVerticesPlano(j));
  if (segunda) minimo.x = puntos[B].x;
  puntos[Min] = minimo;
  puntos[Max] = maximo;
}

}  // namespace

CotasFilas CotasDe(const Transicion& t, Parte parte, Punto2 corte, ListaCotas lista) {
  const auto& F = t.dPuntosPlano;
  const auto& C = t.dVerticesPlano;
  const int N = F.Cuenta() - 1;
  std::vector<Punto2> puntos{F(1), F(N / 2 + 1), F(N + 1), C(1), C(2), C(3), C(4), C(5), C(6), corte};
  puntos.resize(kNombrados);
  PonNiveles(puntos, t, parte);
  puntos[Izq] = F(1);
  puntos[IzqOtro] = C(1);
  if (C(1).x < F(1).x) std::swap(puntos[Izq], puntos[IzqOtro]);
  puntos[Der] = F(N + 1);
  puntos[DerOtro] = C(6);
  if (C(6).x > F(N + 1).x) std::swap(puntos[Der], puntos[DerOtro]);
  return {Filas(parte, lista), std::move(puntos)};
}

}  // namespace duktores
