#include "windows/rotulo_forma.h"

#include <QPainter>
#include <algorithm>

#include "paint/letra.h"
#include "viewer/ewdraw.h"

namespace duktores {

RotuloForma::RotuloForma(const QString& nombre, const std::vector<Punto2>& contorno) {
  constexpr double kLargo = 0.8, kAlto = 0.4, kSube = 1.5;
  if (contorno.empty()) return;
  const auto [bajo, alto] = std::ranges::minmax(contorno, {}, &Punto2::y);
  const double y = (bajo.y + alto.y) / 2, fondo = alto.y - bajo.y;
  std::vector<double> cortes;
  for (std::size_t i = 0, j = contorno.size() - 1; i < contorno.size(); j = i++) {
    const Punto2 p = contorno[j], q = contorno[i];
    if ((p.y > y) != (q.y > y)) cortes.push_back(p.x + (q.x - p.x) * (y - p.y) / (q.y - p.y));
  }
  std::ranges::sort(cortes);
  double desde = 0, ancho = 0;
  for (std::size_t i = 0; i + 1 < cortes.size(); i += 2) {
    if (cortes[i + 1] - cortes[i] > ancho) desde = cortes[i], ancho = cortes[i + 1] - cortes[i];
  }
  tinta_ = Letra().Tinta(nombre);
  if (!(tinta_.width() > 0) || !(ancho > 0)) return;
  const auto cabe = [&](double a, double b) { return std::min(kLargo * a / tinta_.width(), kAlto * b); };
  altura_ = cabe(ancho, fondo);
  sube_ = cabe(fondo, ancho) > kSube * altura_;
  if (sube_) altura_ = cabe(fondo, ancho);
  centro_ = {desde + ancho / 2, y};
  nombre_ = nombre;
}

void RotuloForma::Pinta(QPainter& pintor, const Encuadre& encuadre, QSizeF lienzo) const {
  constexpr double kLegible = 8, kAire = 3;  // device units
  if (nombre_.isEmpty()) return;
  const bool chico = altura_ * encuadre.escala < kLegible;
  const double h = chico ? kLegible / encuadre.escala : altura_;
  Entidad texto;
  texto.tipo = TipoEntidad::texto;
  texto.color = EwRgb(140, 180, 230);
  texto.texto = nombre_.toStdString();
  texto.u = sube_ && !chico ? Punto3{0, h, 0} : Punto3{h, 0, 0};
  texto.v = {-texto.u.y, texto.u.x, 0};
  texto.puntos = {Punto3{centro_.x, centro_.y, 0} - tinta_.center().x() * texto.u - 0.5 * texto.v};
  if (chico) {  // on a plate, or the lines would hide it
    QRectF placa(QPointF(), kLegible * tinta_.size() + QSizeF(2 * kAire, 2 * kAire));
    placa.moveCenter(encuadre.AlDispositivo({centro_.x, centro_.y}, lienzo));
    pintor.fillRect(placa, QColor(27, 31, 37, 210));
  }
  pintor.setOpacity(chico ? 1 : 0.75);
  PintaEntidades(pintor, std::span(&texto, 1), encuadre, lienzo, Fondo::oscuro);
  pintor.setOpacity(1);
}

}  // namespace duktores
