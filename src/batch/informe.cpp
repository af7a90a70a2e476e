#include "batch/informe.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "geometry/redondeo.h"
#include "state/estado.h"

namespace duktores {

namespace {

using nlohmann::ordered_json;

constexpr int kSumas = 6;                    // decimals
constexpr double kCentimetroCuadrado = 100;  // in square millimetres

std::string Texto(const ordered_json& json) {
  return json.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace

bool EsInforme(std::string_view ruta) { return ruta.ends_with(".csv") || ruta.ends_with(".json"); }

Informe::Informe(std::string ruta, HabitoCsv habito)
    : ruta_(std::move(ruta)), habito_(habito), json_(ruta_.ends_with(".json")), milimetros_(estado.iUnidad == 1) {
  if (json_) return;
  const std::string largo = milimetros_ ? " mm" : " in", area = milimetros_ ? " cm2" : " in2";
  FilaCsv cabeza(habito_);
  cabeza.Texto("piece").Texto("shape").Texto("file").Texto("thickness" + largo);
  cabeza.Texto("width" + largo)
      .Texto("height" + largo)
      .Texto("area" + area)
      .Texto(milimetros_ ? "weight g" : "weight oz");
  cabeza.Texto("cut length" + largo).Texto("folds").Texto("deviation" + largo).Texto("verdict");
  filas_ = std::string(kMarcaUtf8) + cabeza.Linea();
}

void Informe::AnadeFila(const std::string& pieza, const FilaInforme& fila) {
  constexpr int kMedida = 3, kDesviacion = 6;
  const double area = milimetros_ ? fila.area / kCentimetroCuadrado : fila.area;
  if (json_) {
    const auto n = [](double v) { return Redondea(v, kDesviacion); };
    filas_ += (filas_.empty() ? "\n" : ",\n") + Texto({{"piece", pieza},
                                                       {"shape", fila.forma},
                                                       {"file", fila.fichero},
                                                       {"thickness", fila.espesor},
                                                       {"width", n(fila.caja.x)},
                                                       {"height", n(fila.caja.y)},
                                                       {"area", n(area)},
                                                       {"weight", n(fila.peso)},
                                                       {"cut_length", n(fila.largo)},
                                                       {"folds", fila.dobleces},
                                                       {"deviation", n(fila.desviacion)},
                                                       {"verdict", fila.veredicto}});
    return;
  }
  FilaCsv linea(habito_);
  linea.Texto(pieza).Texto(fila.forma).Texto(fila.fichero).Numero(fila.espesor, kDesviacion);
  for (const double v : {fila.caja.x, fila.caja.y, area, fila.peso, fila.largo}) linea.Numero(v, kMedida);
  filas_ += linea.Numero(fila.dobleces, 0).Numero(fila.desviacion, kDesviacion).Texto(fila.veredicto).Linea();
}

void Informe::Anade(const Trabajo& trabajo, const Resultado& resultado) {
  for (const FilaInforme& fila : resultado.filas) {
    AnadeFila(trabajo.nombre, fila);
    ++formas_;
    dobleces_ += fila.dobleces;
    area_ += milimetros_ ? fila.area / kCentimetroCuadrado : fila.area;
    peso_ += fila.peso;
    largo_ += fila.largo;
  }
  if (!resultado.rechazo) return;
  ++rechazadas_;
  const std::string motivo = "refused " + resultado.rechazo->clave + ": " + resultado.rechazo->texto;
  if (json_) {
    filas_ += (filas_.empty() ? "\n" : ",\n") + Texto({{"piece", trabajo.nombre}, {"verdict", motivo}});
    return;
  }
  constexpr int kVacias = 10;
  FilaCsv linea(habito_);
  linea.Texto(trabajo.nombre);
  for (int i = 0; i < kVacias; ++i) linea.Texto("");
  filas_ += linea.Texto(EnUnaLinea(motivo)).Linea();
}

void Informe::Anade(const InformeChapas& chapas) {
  constexpr int kMedida = 3, kUso = 2;
  const auto n = [](double v) { return Redondea(v, kMedida); };
  if (json_) {
    ordered_json puestas = ordered_json::array(), faltan = ordered_json::array();
    for (const FilaChapa& c : chapas.chapas) {
      puestas.push_back({{"file", c.fichero},
                         {"thickness", c.espesor},
                         {"width", c.tamano.x},
                         {"height", c.tamano.y},
                         {"parts", c.partes},
                         {"use", Redondea(c.uso, kUso)},
                         {"cut_length", n(c.largo)},
                         {"rest", {n(c.resto.x), n(c.resto.y)}}});
    }
    for (const FilaSinChapa& f : chapas.faltan) {
      faltan.push_back({{"piece", f.pieza},
                        {"shape", f.forma},
                        {"thickness", f.espesor},
                        {"quantity", f.cantidad},
                        {"reason", f.motivo}});
    }
    chapas_ = ",\n\"sheets\": " + Texto(puestas) + ",\n\"left_out\": " + Texto(faltan);
    return;
  }
  chapas_ = "\r\n" + TablaChapas(chapas.chapas, chapas.faltan, habito_);
}

std::string Informe::Json() const {
  const ordered_json unidades{{"length", milimetros_ ? "mm" : "in"},
                              {"area", milimetros_ ? "cm2" : "in2"},
                              {"weight", milimetros_ ? "g" : "oz"}};
  const ordered_json sumas{{"shapes", formas_},
                           {"refused", rechazadas_},
                           {"area", Redondea(area_, kSumas)},
                           {"weight", Redondea(peso_, kSumas)},
                           {"cut_length", Redondea(largo_, kSumas)},
                           {"folds", dobleces_}};
  return "{\"units\": " + Texto(unidades) + ",\n\"shapes\": [" + filas_ + "\n]" + chapas_ +
         ",\n\"sums\": " + Texto(sumas) + "}\n";
}

Guardado Informe::Guarda() const { return EscribeFichero(ruta_, json_ ? Json() : filas_ + chapas_); }

}  // namespace duktores
