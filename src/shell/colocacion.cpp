#include "shell/colocacion.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/solape.h"
#include "piece/numeros_texto.h"
#include "shell/texto_veredicto.h"
#include "shell/visor.h"
#include "state/textos.h"

namespace duktores {

namespace {

std::vector<Punto2> En(const std::vector<Punto2>& contorno, Punto2 sitio) {
  std::vector<Punto2> puntos;
  for (const Punto2 p : contorno) puntos.push_back(p + sitio);
  return puntos;
}

/// The text with the numbers in the places of %1 and %2.
std::string Llena(std::string texto, std::size_t uno, std::size_t dos) {
  for (const auto& [marca, numero] : {std::pair("%1", uno), std::pair("%2", dos)}) {
    if (const std::size_t lugar = texto.find(marca); lugar != texto.npos) {
      texto.replace(lugar, 2, std::to_string(numero));
    }
  }
  return texto;
}

Caja CajaEn(const Cosa& cosa, Punto2 sitio) {
  Caja caja = cosa.caja;
  if (caja.Vacia()) return {{sitio.x, sitio.y, 0}, {sitio.x, sitio.y, 0}};
  const Punto3 mas{sitio.x, sitio.y, 0};
  return {caja.minimo + mas, caja.maximo + mas};
}

}  // namespace

Corrida Colocacion::Despliega(EWdraw& axew) {
  for (;;) {
    pedidas_ = 0;
    cambiada_ = false;
    axew.Calla(Puestas().size() > fijas_);
    Corrida corrida = Desplegado(
        axew, [this] { return Desarrolla(); }, [&](const Encargo& encargo) { return Pide(axew, encargo); });
    axew.Calla(false);
    if (corrida.fin != FinCorrida::eleccionRechazada || !cambiada_) return corrida;
  }
}

Desarrollo Colocacion::Desarrolla() {
  if (!desarrollo_) {
    desarrollo_ = hace_();
    cosas_ = Ensaya(desarrollo_->patron, FormatoDeEstado());
    fijas_ = !cosas_.empty() && cosas_.front().fija ? 1 : 0;
    const std::size_t pide = cosas_.size() - fijas_;
    historia_ = {Sitios(fijas_)};
    if (pide > 0 && antes_.size() == pide) {
      Anade(antes_);
      Apunta(Sitios(fijas_));
    }
    conocidos_.resize(std::min(conocidos_.size(), pide));
    Anade(conocidos_);
  }
  return *desarrollo_;
}

Punto2 Colocacion::Pide(EWdraw& axew, const Encargo& encargo) {
  const std::size_t cosa = fijas_ + pedidas_++;
  if (cosa < Puestas().size()) return Puestas()[cosa];
  axew.Calla(false);
  const Punto2 sitio = PideAlDueno(axew, encargo, {std::exchange(conCaja_, true), Cuenta(encargo)});
  if (cambiada_) throw EleccionRechazada{};  // a click and a key at once: the list is another one
  Sitios sitios = Puestas();
  sitios.push_back(sitio);
  Apunta(std::move(sitios));
  return sitio;
}

std::string Colocacion::Cuenta(const Encargo& encargo) const {
  const auto& formas = desarrollo_->patron.formas;
  const auto lugar = std::ranges::find(formas, encargo.forma.nombre, &FormaPatron::nombre) - formas.begin();
  const std::string cuantas = Llena(Texto(texto::kDeCuantas), static_cast<std::size_t>(lugar) + 1, formas.size());
  return (encargo.bloque ? Texto(texto::kCajetin) + ": " : "") + TextoForma(encargo.forma.nombre) +
         (formas.size() > 1 ? " (" + cuantas + ")" : "");
}

std::string Colocacion::Nombre(std::size_t cosa) const {
  const std::string nombre = TextoForma(desarrollo_->patron.formas[cosas_[cosa].forma].nombre);
  return cosas_[cosa].bloque ? Texto(texto::kCajetin) + " (" + nombre + ")" : nombre;
}

void Colocacion::Apunta(Sitios sitios) {
  historia_.resize(++actual_);
  historia_.push_back(std::move(sitios));
}

// One after the other, as they can be taken back.
void Colocacion::Anade(const Sitios& nuevas) {
  for (const Punto2 sitio : nuevas) {
    Sitios sitios = Puestas();
    sitios.push_back(sitio);
    Apunta(std::move(sitios));
  }
}

bool Colocacion::Cambia(Sitios sitios) {
  if (sitios == Puestas()) return false;
  Apunta(std::move(sitios));
  conCaja_ = false;
  return cambiada_ = true;
}

bool Colocacion::PonTodas() {
  if (!desarrollo_ || Completa()) return false;
  Sitios sitios = Puestas();
  Patron resto = desarrollo_->patron;
  const std::size_t desde = cosas_[sitios.size()].forma;
  resto.formas.erase(resto.formas.begin(), resto.formas.begin() + static_cast<std::ptrdiff_t>(desde));
  Sitios nuevas = Reparte(resto, FormatoDeEstado());
  // Of a shape that is placed but for its block the place is there already.
  const std::size_t faltan = std::min(cosas_.size() - sitios.size(), nuevas.size());
  nuevas.erase(nuevas.begin(), nuevas.end() - static_cast<std::ptrdiff_t>(faltan));
  double derecha = -HUGE_VAL, izquierda = HUGE_VAL;
  for (std::size_t i = 0; i < sitios.size(); ++i) derecha = std::max(derecha, CajaEn(cosas_[i], sitios[i]).maximo.x);
  for (std::size_t i = 0; i < faltan; ++i) {
    izquierda = std::min(izquierda, CajaEn(cosas_[sitios.size() + i], nuevas[i]).minimo.x);
  }
  const bool libre = sitios.size() == fijas_;  // nothing stands in the way of the arrangement
  const Punto2 mas{libre ? 0 : derecha + 2 * FormatoDeEstado().pasoX - izquierda, 0};
  for (Punto2& sitio : nuevas) sitio = sitio + mas;
  Anade(nuevas);
  conCaja_ = false;
  return cambiada_ = true;
}

bool Colocacion::Repartida() const {
  return Completa() && Elegidas() == Reparte(desarrollo_->patron, FormatoDeEstado());
}

bool Colocacion::PonJunta() {
  if (!desarrollo_ || Completa()) return false;
  Sitios sitios = Puestas();
  const std::size_t cosa = sitios.size();
  const Caja suya = CajaEn(cosas_[cosa], {});
  if (sitios.empty()) return Cambia({{-suya.minimo.x, -suya.minimo.y}});
  const auto derechaDe = [&](std::size_t otra) {
    return CajaEn(cosas_[otra], sitios[otra]).maximo.x + 2 * FormatoDeEstado().pasoX - suya.minimo.x;
  };
  const double y = CajaEn(cosas_[cosa - 1], sitios.back()).minimo.y - suya.minimo.y;
  Punto2 sitio{derechaDe(cosa - 1), y};
  // Each step gets beyond one of the placed things at least.
  for (std::size_t n = 0; n < cosa; ++n) {
    for (const std::size_t otra : Solapadas(cosa, sitio)) sitio.x = std::max(sitio.x, derechaDe(otra));
  }
  sitios.push_back(sitio);
  return Cambia(std::move(sitios));
}

bool Colocacion::Mueve(std::size_t cosa, Punto2 mas) {
  Sitios sitios = Puestas();
  if (cosa < fijas_ || cosa >= sitios.size()) return false;
  sitios[cosa] = sitios[cosa] + mas;
  if (const auto bloque = BloqueDe(cosa)) sitios[*bloque] = sitios[*bloque] + mas;
  return Cambia(std::move(sitios));
}

bool Colocacion::Deshace() {
  if (actual_ == 0) return false;
  --actual_;
  conCaja_ = false;
  return cambiada_ = true;
}

bool Colocacion::Rehace() {
  if (actual_ + 1 == historia_.size()) return false;
  ++actual_;
  conCaja_ = false;
  return cambiada_ = true;
}

std::optional<std::size_t> Colocacion::BloqueDe(std::size_t cosa) const {
  const std::size_t otra = cosa + 1;
  if (otra >= Puestas().size() || cosas_[cosa].bloque || !cosas_[otra].bloque) return {};
  return otra;
}

std::vector<std::size_t> Colocacion::Solapadas(std::size_t cosa, Punto2 sitio,
                                               std::optional<std::size_t> consigo) const {
  std::vector<std::size_t> solapadas;
  if (cosa >= cosas_.size()) return solapadas;
  const auto contorno = En(cosas_[cosa].contorno, sitio);
  const std::size_t puestas = std::min(Puestas().size(), cosas_.size());
  for (std::size_t i = 0; i < puestas; ++i) {
    if (i == cosa || i == consigo) continue;
    if (SeSolapan(contorno, En(cosas_[i].contorno, Puestas()[i]))) solapadas.push_back(i);
  }
  return solapadas;
}

}  // namespace duktores
