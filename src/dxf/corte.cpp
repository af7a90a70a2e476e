#include "dxf/corte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "dxf/composicion.h"
#include "dxf/numero_dxf.h"
#include "geometry/giro.h"
#include "geometry/planas.h"
#include "state/caracteres.h"
#include "state/numeros.h"

namespace duktores {

namespace {

constexpr double kMarca = 10;  // length of a tick, in millimetres

class Entidades {
 public:
  Entidades(const Maquina& maquina, double milimetro) : maquina_(maquina), milimetro_(milimetro) {}

  void Pon(const ParteCorte& parte) {
    sitio_ = parte.sitio;
    PonContorno(parte.recorte);
    for (const DoblezRecorte& d : parte.recorte.dobleces) {
      PonDoblez(d.doblez.haciaArriba ? maquina_.capaArriba : maquina_.capaAbajo, parte.recorte.En(d.enP),
                parte.recorte.En(d.enQ));
    }
    for (const auto& [p, q] : parte.marca) PonLinea(maquina_.capaMarca, p, q);
  }
  void PonBorde(const std::string& capa, Punto2 tamano) {
    sitio_ = {};
    PonCerrada(capa, {{{0, 0}}, {{tamano.x, 0}}, {tamano}, {{0, tamano.y}}});
  }
  const std::string& Texto() const { return texto_; }

 private:
  void Par(int codigo, std::string_view valor) {
    texto_.append(codigo < 10 ? 2 : codigo < 100 ? 1 : 0, ' ').append(std::to_string(codigo)).append("\r\n");
    texto_.append(valor).append("\r\n");
  }
  void Numero(int codigo, double v, int decimales) { Par(codigo, TextoFijo(v, decimales)); }
  void PonPunto(int codigo, Punto2 p, int decimales = 6) {
    Numero(codigo, p.x + sitio_.x, decimales);
    Numero(codigo + 10, p.y + sitio_.y, decimales);
  }
  void Cabeza(std::string_view tipo, const std::string& capa, std::string_view subclase) {
    Par(0, tipo);
    Par(5, Handle());
    Par(330, "6B");
    Par(100, "AcDbEntity");
    Par(8, capa);
    Par(100, subclase);
  }
  std::string Handle() {
    std::array<char, 8> cifras;
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), handle_++, 16);
    return Mayusculas({cifras.data(), fin.ptr});
  }

  void PonLinea(const std::string& capa, Punto2 p, Punto2 q) {
    Cabeza("LINE", capa, "AcDbLine");
    PonPunto(10, p);
    Numero(30, 0, 1);
    PonPunto(11, q);
    Numero(31, 0, 1);
  }

  // The ends of an arc come from its centre, radius and angles, so these need more digits than what they must meet.
  void PonArco(Punto2 p, Punto2 q, const Arco& arco) {
    constexpr int kDecimales = 12;
    const auto angulo = [&](Punto2 r) { return AnguloRecta(arco.centro, r); };
    Cabeza("ARC", maquina_.capaCorte, "AcDbCircle");
    PonPunto(10, arco.centro, kDecimales);
    Numero(30, 0, 1);
    Numero(40, arco.radio, kDecimales);
    Par(100, "AcDbArc");
    Numero(50, angulo(arco.antihorario ? p : q), kDecimales);
    Numero(51, angulo(arco.antihorario ? q : p), kDecimales);
  }

  void PonCerrada(const std::string& capa, const std::vector<Trecho>& contorno) {
    Cabeza("LWPOLYLINE", capa, "AcDbPolyline");
    Par(90, std::to_string(contorno.size()));
    Par(70, "1");
    Numero(43, 0, 1);
    for (const Trecho& trecho : contorno) PonPunto(10, trecho.p);
  }

  void PonContorno(const Recorte& recorte) {
    const std::size_t n = recorte.contorno.size();
    if (!maquina_.arcos) return PonCerrada(maquina_.capaCorte, recorte.contorno);
    for (std::size_t i = 0; i < n; ++i) {
      const auto& [p, arco] = recorte.contorno[i];
      const Punto2 q = recorte.En((i + 1) % n);
      arco ? PonArco(p, q, *arco) : PonLinea(maquina_.capaCorte, p, q);
    }
  }

  void PonDoblez(const std::string& capa, Punto2 p, Punto2 q) {
    const double largo = Distancia(p, q), marca = kMarca * milimetro_;
    if (maquina_.dobleces == TrazoDoblez::ninguno) return;
    if (maquina_.dobleces == TrazoDoblez::entero || largo <= 2 * marca) return PonLinea(capa, p, q);
    const Punto2 paso = marca / largo * (q - p);
    PonLinea(capa, p, p + paso);
    PonLinea(capa, q - paso, q);
  }

  const Maquina& maquina_;
  double milimetro_;
  Punto2 sitio_;
  std::string texto_;
  int handle_ = 0x500;  // behind those of the template
};

// Not a layer that the machine does something with.
std::string CapaBorde(const Maquina& maquina) {
  std::string capa(kCapasChapa[4]);
  const auto usada = [&](const std::string& otra) { return Mayusculas(otra) == capa; };
  const std::array suyas{maquina.capaCorte, maquina.capaArriba, maquina.capaAbajo, maquina.capaMarca};
  while (std::ranges::any_of(suyas, usada)) capa += "_RIM";
  return capa;
}

// Layers by the machine's names; the header's view and unit.
std::vector<Reemplazo> Reemplazos(Punto2 tamano, const Maquina& maquina, bool milimetros) {
  constexpr double kAspecto = 2, kAire = 1.05;  // width of the view by its height, as the template says
  const auto n = [](double v) { return DxfNumeroTexto(v); };
  const double altura = kAire * std::max(tamano.y, tamano.x / kAspecto);
  const std::vector<Sustitucion> cero{{1, n(0)}, {1, n(0)}}, hasta{{1, n(tamano.x)}, {1, n(tamano.y)}};
  return {{"$EXTMIN", cero},
          {"$EXTMAX", hasta},
          {"$LIMMIN", cero},
          {"$LIMMAX", hasta},
          {"$PLIMMIN", cero},  // by which a program chooses its paper
          {"$PLIMMAX", hasta},
          {"$LTSCALE", {{1, n(milimetros ? 1 : kPulgadaPorMilimetro)}}},
          {"$INSUNITS", {{1, milimetros ? "4" : "1"}}},
          {"$MEASUREMENT", {{1, milimetros ? "1" : "0"}}},
          {"*ACTIVE", {{11, n(tamano.x / 2)}, {1, n(tamano.y / 2)}, {25, n(altura)}}},
          {kCapasCorte[0], {}, maquina.capaCorte},
          {kCapasCorte[1], {}, maquina.capaArriba},
          {kCapasCorte[2], {}, maquina.capaAbajo},
          {kCapasCorte[3], {}, maquina.capaMarca},
          {kCapasChapa[4], {}, CapaBorde(maquina)}};
}

}  // namespace

ParteCorte ColocadaEn(const ParteCorte& parte, double grados, Punto2 sitio) {
  const Giro giro(grados);
  ParteCorte puesta = parte;
  puesta.sitio = sitio;
  for (Trecho& trecho : puesta.recorte.contorno) {
    trecho.p = giro(trecho.p);
    if (trecho.arco) trecho.arco->centro = giro(trecho.arco->centro);
  }
  for (auto& [p, q] : puesta.marca) {
    p = giro(p);
    q = giro(q);
  }
  return puesta;
}

Guardado GuardaCorte(const std::string& ruta, std::span<const ParteCorte> partes, const Maquina& maquina,
                     bool milimetros, std::optional<Punto2> chapa) {
  Entidades entidades(maquina, milimetros ? 1 : kPulgadaPorMilimetro);
  Punto2 tamano;
  for (const ParteCorte& parte : partes) {
    entidades.Pon(parte);
    const Punto2 hasta = parte.sitio + parte.recorte.tamano;
    tamano = {std::max(tamano.x, hasta.x), std::max(tamano.y, hasta.y)};
  }
  if (chapa) {
    tamano = *chapa;
    entidades.PonBorde(CapaBorde(maquina), tamano);
  }
  std::string fichero;
  const Guardado paso = ComponeDxf(chapa ? kPlantillaChapa : kPlantillaCorte, Reemplazos(tamano, maquina, milimetros),
                                   entidades.Texto(), fichero);
  return paso ? EscribeFichero(ruta, fichero) : paso;
}

}  // namespace duktores
