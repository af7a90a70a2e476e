#pragma once
// Points and lists of points. Plane points lie in the flat frame of a pattern, space points in the frame of the
// solid; all coordinates are lengths in the configured unit.

#include <cassert>
#include <cmath>
#include <numbers>
#include <vector>

namespace duktores {

inline constexpr double dPi = std::numbers::pi;

inline double Radianes(double grados) { return grados * dPi / 180.0; }
inline double Grados(double radianes) { return radianes * 180.0 / dPi; }

struct Punto2 {
  double x = 0, y = 0;
  friend bool operator==(const Punto2&, const Punto2&) = default;
  friend Punto2 operator+(Punto2 a, Punto2 b) { return {a.x + b.x, a.y + b.y}; }
  friend Punto2 operator-(Punto2 a, Punto2 b) { return {a.x - b.x, a.y - b.y}; }
  friend Punto2 operator*(double k, Punto2 a) { return {k * a.x, k * a.y}; }
};

struct Punto3 {
  double x = 0, y = 0, z = 0;
  friend bool operator==(const Punto3&, const Punto3&) = default;
  friend Punto3 operator+(Punto3 a, Punto3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Punto3 operator-(Punto3 a, Punto3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Punto3 operator*(double k, Punto3 a) { return {k * a.x, k * a.y, k * a.z}; }
};

inline double Escalar(Punto3 a, Punto3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Punto3 Vectorial(Punto3 a, Punto3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Norma(Punto3 p) { return std::sqrt(Escalar(p, p)); }
inline double Distancia(Punto2 a, Punto2 b) { return std::hypot(b.x - a.x, b.y - a.y); }
inline double Distancia(Punto3 a, Punto3 b) { return Norma(b - a); }

/// A list of points that is indexed from 1, as the workshop numbers them: F(1), F(2), ... An index outside 1..n is a
/// programming error and stops the program.
template <class Punto>
class Puntos {
 public:
  Puntos() = default;
  explicit Puntos(int cuenta) : lista_(static_cast<std::size_t>(cuenta)) {}
  Puntos(std::initializer_list<Punto> lista) : lista_(lista) {}

  Punto& operator()(int k) { return lista_[Indice(k)]; }
  const Punto& operator()(int k) const { return lista_[Indice(k)]; }
  int Cuenta() const { return static_cast<int>(lista_.size()); }

 private:
  std::size_t Indice(int k) const {
    assert(k >= 1 && k <= Cuenta());
    return static_cast<std::size_t>(k - 1);
  }
  std::vector<Punto> lista_;
};

using Puntos2 = Puntos<Punto2>;
using Puntos3 = Puntos<Punto3>;

}  // namespace duktores
