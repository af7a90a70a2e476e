#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

#include "piezas_azar.h"
#include "shell/corrida.h"
#include "shell/lista.h"
#include "special/causa.h"
#include "state/estado.h"

namespace duktores {

namespace {

class Cotidiana {
 public:
  explicit Cotidiana(std::mt19937& azar) : azar_(azar) {}

  // By the dialogs' words in small letters.
  std::map<std::string, double> Saca(TipoPieza tipo) {
    m_.clear();
    Boca base{Lado(), Lado(), {}}, boca{Lado(), Lado(), {}};
    switch (tipo) {
      case TipoPieza::cr:
        boca = Redonda(std::max(base.LX, base.LY));
        m_["rs"] = boca.LX / 2;
        break;
      case TipoPieza::rc:
        base = Redonda(1e9);
        boca.LX = std::min(boca.LX, base.LX);  // one side at most is longer than the circle
        m_["ri"] = base.LX / 2;
        break;
      case TipoPieza::elip:
        boca = {Diametro(), Diametro(), {}};
        if (boca.LX < boca.LY) std::swap(boca.LX, boca.LY);
        break;
      default:
        Especial(tipo, base, boca);
    }
    Lados(tipo, base, boca);
    m_["h"] = Redondo(std::max({base.LX, base.LY, boca.LX, boca.LY}) * Entre(0.35, 1.6), 10);
    m_["ax"] = Desvio(base.LX, boca.LX);
    m_["ay"] = Desvio(base.LY, boca.LY);
    const bool nivelada = Uno() < 0.7;
    m_["alfa"] = nivelada ? 0 : Redondo(Entre(5, 45), 5);
    m_["beta"] = nivelada || Uno() < 0.5 ? 0 : Redondo(Entre(5, 45), 5);
    if ((tipo == TipoPieza::cr || tipo == TipoPieza::rc) && Uno() < 0.5) m_["alfa"] = -m_["alfa"];
    m_["divisions"] = 8.0 + 4 * Hasta(15);
    return m_;
  }
  double Uno() { return std::uniform_real_distribution<double>(0, 1)(azar_); }
  double Entre(double a, double b) { return a + (b - a) * Uno(); }
  unsigned Hasta(unsigned n) { return static_cast<unsigned>(azar_() % n); }
  static double Redondo(double v, double paso) { return paso * std::round(v / paso); }

 private:
  double Lado() { return 150 + 50 * Hasta(22); }
  double Diametro() {
    constexpr std::array kDiametros{80,  100, 125, 150, 160, 180, 200, 224, 250, 280, 300, 315,
                                    355, 400, 450, 500, 560, 600, 630, 710, 800, 900, 1000};
    return kDiametros[Hasta(kDiametros.size())];
  }
  Boca Redonda(double comoMucho) {
    double d = Diametro();
    while (d > comoMucho) d = Diametro();
    return Circulo(d / 2);
  }
  void PonRadios(Boca& boca, const char* cual, bool alCuadrado) {
    const double mitad = std::min(boca.LX, boca.LY) / 2;
    const bool redonda = Hasta(7) == 0;
    if (redonda && alCuadrado) boca.LY = boca.LX;
    for (const char c : {'1', '2', '3', '4'}) {
      const double r = redonda ? std::min(boca.LX, boca.LY) / 2 : Hasta(3) == 0 ? 0 : Redondo(Entre(10, mitad), 5);
      m_[std::string(cual) + c] = std::min(r, std::min(boca.LX, boca.LY) / 2);
    }
  }
  void Especial(TipoPieza tipo, Boca& base, Boca& boca) {
    if (tipo == TipoPieza::esp1 || tipo == TipoPieza::esp5) PonRadios(boca, "r1", true);
    if (tipo == TipoPieza::esp1 || tipo == TipoPieza::esp4) PonRadios(base, "r2", true);
    if (tipo != TipoPieza::esp1 && tipo != TipoPieza::esp5) {
      boca = Redonda(1e9);
      m_["r"] = m_["r1"] = boca.LX / 2;
    }
    if (tipo == TipoPieza::esp2 && base.LX < base.LY) std::swap(base.LX, base.LY);
    if (tipo == TipoPieza::esp3) base.LY = std::min(base.LY, 2 * base.LX);
  }
  void Lados(TipoPieza tipo, const Boca& base, const Boca& boca) {
    const bool dosBocas = tipo == TipoPieza::esp1 || tipo == TipoPieza::esp5;
    m_["li"] = base.LX;
    m_["ai"] = base.LY;
    m_["ls"] = boca.LX;
    m_["as"] = boca.LY;
    m_["emas"] = boca.LX;
    m_["emes"] = boca.LY;
    m_["lx"] = base.LX;
    m_["ly"] = base.LY;
    if (!dosBocas) return;
    m_["lx1"] = boca.LX;
    m_["ly1"] = boca.LY;
    m_["lx2"] = base.LX;
    m_["ly2"] = base.LY;
  }
  double Desvio(double base, double boca) {
    const double cual = Uno();
    if (cual < 0.5) return 0;
    if (cual < 0.75) return std::abs(base - boca) / 2;
    return Redondo(Entre(0, std::max(base, boca) / 2), 5);
  }

  std::mt19937& azar_;
  std::map<std::string, double> m_;
};

// Clear of the base by more than the sheet's thickness, and nowhere cut above the point where elements meet.
bool Despejada(Pieza pieza) {
  pieza.regla = Regla::exacta;
  const Solido solido = SolidoDe(pieza);
  double bajo = HUGE_VAL;
  for (const Punto3& p : solido.puntos) {
    if (p.z != 0) bajo = std::min(bajo, p.z);
  }
  return bajo > pieza.espesor && (FilaDe(pieza.tipo).grupo != Grupo::especiales || !Imposible(pieza));
}

}  // namespace

void AceptaCotidiana(Dialogo& dialogo, std::mt19937& azar) {
  Cotidiana cotidiana(azar);
  do {
    estado.dEspesor = 0.5 + 0.5 * cotidiana.Hasta(6);
    estado.iFibra = static_cast<std::int16_t>(1 + cotidiana.Hasta(3));
    TecleaMedidas(dialogo, cotidiana.Saca(dialogo.Definicion().tipo), azar);
    dialogo.dosPiezas = cotidiana.Hasta(2) == 0;
  } while (Dialogo(dialogo).CmdAceptar() != Respuesta::aceptado || !Despejada(*estado.pieza));
}

}  // namespace duktores
