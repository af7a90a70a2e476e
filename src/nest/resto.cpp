#include "nest/resto.h"

#include <algorithm>
#include <cmath>

namespace duktores {

namespace {

// Squares along the sides of the sheet; of the longer one no more than the last.
constexpr int kCeldas = 400, kCeldasCorto = 200, kMaximo = 4000;

/// The sheet in squares, of which those are taken that a part covers or comes near to.
class Cuadricula {
 public:
  explicit Cuadricula(Punto2 tamano)
      : paso_(Paso(std::max(tamano.x, tamano.y), std::min(tamano.x, tamano.y))),
        columnas_(static_cast<int>(tamano.x / paso_ + kResto)),
        filas_(static_cast<int>(tamano.y / paso_ + kResto)),
        tomadas_(static_cast<std::size_t>(columnas_ * filas_)) {}

  void Tapa(const std::vector<Punto2>& contorno, double hueco) {
    Punto2 a = contorno.back();
    for (const Punto2 b : contorno) {
      TapaCanto(a, b, hueco);
      a = b;
    }
    for (int fila = 0; fila < filas_; ++fila) TapaInterior(contorno, fila);
  }

  /// Rows of free squares upwards of each column make a skyline, whose largest rectangle is looked for row by row.
  Resto Mayor() const {
    Resto mejor;
    std::vector<int> altos(static_cast<std::size_t>(columnas_) + 1);
    for (int fila = 0; fila < filas_; ++fila) {
      std::vector<int> abiertas;
      for (int columna = 0; columna <= columnas_; ++columna) {
        int& alto = altos[static_cast<std::size_t>(columna)];
        alto = columna < columnas_ && !tomadas_[En(columna, fila)] ? alto + 1 : 0;
        while (!abiertas.empty() && altos[static_cast<std::size_t>(abiertas.back())] >= alto) {
          const int suyo = altos[static_cast<std::size_t>(abiertas.back())];
          abiertas.pop_back();
          const int desde = abiertas.empty() ? 0 : abiertas.back() + 1;
          const Punto2 tamano = paso_ * Punto2{static_cast<double>(columna - desde), static_cast<double>(suyo)};
          if (tamano.x * tamano.y <= mejor.tamano.x * mejor.tamano.y) continue;
          mejor = {paso_ * Punto2{static_cast<double>(desde), static_cast<double>(fila + 1 - suyo)}, tamano};
        }
        abiertas.push_back(columna);
      }
    }
    return mejor;
  }

 private:
  static constexpr double kResto = 1e-9;

  static double Paso(double largo, double corto) {
    return std::max(largo / kMaximo, std::min(largo / kCeldas, corto / kCeldasCorto));
  }

  std::size_t En(int columna, int fila) const { return static_cast<std::size_t>(fila * columnas_ + columna); }
  int Celda(double v, int cuantas) const {
    return static_cast<int>(std::clamp(std::floor(v / paso_), -1.0, static_cast<double>(cuantas)));
  }

  // In each column those squares that the edge, widened by the gap, passes there.
  void TapaCanto(Punto2 a, Punto2 b, double hueco) {
    if (a.x > b.x) std::swap(a, b);
    const double pendiente = b.x > a.x ? (b.y - a.y) / (b.x - a.x) : 0;
    const int ultima = std::min(columnas_ - 1, Celda(b.x + hueco, columnas_));
    for (int columna = std::max(0, Celda(a.x - hueco, columnas_)); columna <= ultima; ++columna) {
      const double x0 = std::clamp(columna * paso_ - hueco, a.x, b.x);
      const double x1 = std::clamp((columna + 1) * paso_ + hueco, a.x, b.x);
      const double y0 = b.x > a.x ? a.y + (x0 - a.x) * pendiente : a.y;
      const double y1 = b.x > a.x ? a.y + (x1 - a.x) * pendiente : b.y;
      const int hasta = std::min(filas_ - 1, Celda(std::max(y0, y1) + hueco, filas_));
      for (int fila = std::max(0, Celda(std::min(y0, y1) - hueco, filas_)); fila <= hasta; ++fila) {
        tomadas_[En(columna, fila)] = true;
      }
    }
  }

  void TapaInterior(const std::vector<Punto2>& contorno, int fila) {
    const double y = (fila + 0.5) * paso_;
    std::vector<double> cortes;
    Punto2 a = contorno.back();
    for (const Punto2 b : contorno) {
      if ((a.y > y) != (b.y > y)) cortes.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
      a = b;
    }
    std::ranges::sort(cortes);
    for (std::size_t i = 0; i + 1 < cortes.size(); i += 2) {
      const int hasta = std::min(columnas_ - 1, Celda(cortes[i + 1], columnas_));
      for (int columna = std::max(0, Celda(cortes[i], columnas_)); columna <= hasta; ++columna) {
        tomadas_[En(columna, fila)] = true;
      }
    }
  }

  double paso_;
  int columnas_, filas_;
  std::vector<bool> tomadas_;
};

}  // namespace

Resto RestoMayor(const EncargoNido& encargo, const ChapaPuesta& chapa) {
  Cuadricula cuadricula(encargo.chapas[chapa.chapa].tamano);
  for (const Colocada& c : chapa.partes) {
    cuadricula.Tapa(ContornoEn(encargo.partes[c.parte], c), encargo.hueco);
  }
  return cuadricula.Mayor();
}

}  // namespace duktores
