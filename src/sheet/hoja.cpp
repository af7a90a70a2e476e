#include "sheet/hoja.h"

#include <algorithm>
#include <exception>
#include <string>
#include <utility>

#include "annotation/anotacion.h"
#include "piece/numeros_texto.h"
#include "sheet/cajetin.h"
#include "sheet/cotas_forma.h"
#include "state/error_corrida.h"
#include "state/textos.h"

namespace duktores {

namespace {

std::vector<Punto2> Contorno(const FormaPatron& forma, Punto2 mas = {}) {
  std::vector<Punto2> puntos;
  puntos.reserve(forma.contorno.size());
  for (const Vertice& v : forma.contorno) puntos.push_back(v.p + mas);
  return puntos;
}

std::vector<Punto2> SinRepetir(std::vector<Punto2> contorno) {
  const auto coinciden = [](Punto2 p, Punto2 q) { return Distancia(p, q) <= kNivel; };
  contorno.erase(std::unique(contorno.begin(), contorno.end(), coinciden), contorno.end());
  while (contorno.size() > 1 && coinciden(contorno.front(), contorno.back())) contorno.pop_back();
  return contorno;
}

void Coloca(FormaPatron& forma, Punto2 sitio) {
  if (forma.panel) {
    const auto p = TiendePanel(*forma.panel, sitio);
    for (std::size_t i = 0; i < forma.contorno.size(); ++i) forma.contorno[i].p = p[i % p.size()];
    for (Linea& linea : forma.lineas) {
      linea.p = forma.En(linea.enP);
      linea.q = forma.En(linea.enQ);
    }
    return;
  }
  const Punto2 mas = sitio - forma.ancla;
  for (Vertice& v : forma.contorno) v.p = v.p + mas;
  for (Linea& linea : forma.lineas) {
    linea.p = linea.p + mas;
    linea.q = linea.q + mas;
  }
  Mueve(forma.cotas, mas);
}

class Dibujante {
 public:
  Dibujante(EWdraw& axew, const FormatoHoja& formato, const PideSitio& pide, bool sinRepetir)
      : axew_(axew), formato_(formato), pide_(pide), sinRepetir_(sinRepetir) {}

  void Dibuja(FormaPatron& forma) {
    contorno_ = false;
    std::vector<double> largos = Largos(forma);
    if (forma.aviso != 0) {
      EmpiezaContorno();
      Coloca(forma, pide_({forma, false}));
    }
    if (forma.contorno.empty()) return;
    if (!LargosDelPatron(forma.bloque.estilo)) largos = Largos(forma);
    forma.sinNumero = forma.lineas.size();
    Marca(forma);
    axew_.EwRegen();
    if (!HayBloque(forma.bloque)) return;
    DibujaCajetin(axew_, forma, largos, formato_, pide_({forma, true}));
    axew_.EwRegen();
  }
  bool HayContorno() const { return contorno_; }

 private:
  bool HayBloque(const Bloque& bloque) const { return bloque.soloCaja1 ? formato_.caja == 1 : formato_.caja != 0; }

  std::vector<double> Largos(const FormaPatron& forma) const {
    std::vector<double> largos;
    if (!HayBloque(forma.bloque)) return largos;
    for (const Linea& linea : forma.lineas) largos.push_back(Distancia(linea.p, linea.q));
    return largos;
  }

  void Marca(FormaPatron& forma) {
    DibujaContorno(axew_, sinRepetir_ ? SinRepetir(Contorno(forma)) : Contorno(forma));
    contorno_ = true;
    bool faltanCotas = formato_.cotas;
    const auto acota = [&] {
      if (std::exchange(faltanCotas, false)) DibujaCotas(axew_, forma, formato_);
    };
    for (std::size_t i = 0; i < forma.lineas.size(); ++i) {
      const Linea& linea = forma.lineas[i];
      if (linea.clase == Clase::borde && forma.cotasAntes) acota();
      if (linea.clase != Clase::borde) {
        DibujaLinea(axew_, linea.p, linea.q, linea.clase == Clase::lado ? kColorLado : formato_.colorDoblez);
      }
      const Punto2 sitio = SitioNumero(forma.nombre.forma, linea);
      std::string numero = std::to_string(i + 1);
      DibujaTexto(axew_, sitio.x, sitio.y, numero, formato_.altura, kColorNumero, 0);
      --forma.sinNumero;
    }
    acota();
  }

  EWdraw& axew_;
  const FormatoHoja& formato_;
  const PideSitio& pide_;
  bool sinRepetir_, contorno_ = false;
};

}  // namespace

Patron DibujaPatron(EWdraw& axew, Patron patron, const FormatoHoja& formato, const PideSitio& pide) {
  Dibujante dibujante(axew, formato, pide, patron.sinRepetir);
  for (FormaPatron& forma : patron.formas) {
    try {
      dibujante.Dibuja(forma);
    } catch (const ErrorCorrida& error) {
      if (!patron.sigueTrasFallo || error.NumeroTexto() != texto::kMedidaImposible) throw;
      if (!dibujante.HayContorno()) forma.contorno.clear();
    }
  }
  return patron;
}

Punto2 PideAlDueno(EWdraw& axew, const Encargo& encargo, const Peticion& peticion) {
  const auto& [forma, bloque] = encargo;
  const std::string& nombre = peticion.nombre;
  if (peticion.caja) {
    MuestraMensaje(Texto(bloque ? texto::kColocarCajetin : forma.aviso), EstiloMensaje::informacion, "", nombre);
  }
  if (bloque) {
    axew.EwGhost(MarcoCajetin(forma.bloque), nombre.empty() ? Texto(texto::kCajetin) : nombre);
  } else {
    const std::string numero = " " + std::to_string(forma.nombre.numero);
    const std::string rotulo = forma.rotulo == 0 ? "" : Texto(forma.rotulo) + numero;
    axew.EwGhost(Contorno(forma, Punto2{} - forma.ancla), nombre.empty() ? rotulo : nombre);
  }
  Punto3 sitio;
  axew.EwPickPoint(sitio.x, sitio.y, sitio.z);
  return {sitio.x, sitio.y};
}

}  // namespace duktores
