// However the places of a pattern were come by, the drawing is the one of who clicks them one after the other.

#include "shell/colocacion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "dxf/dibujo.h"
#include "dxf/escritor.h"
#include "mesa.h"
#include "pieza_tecleada.h"
#include "shell/visor.h"
#include "state/fichero.h"
#include "state/textos.h"

namespace duktores {
namespace {

constexpr std::tuple<TipoPieza, const char*, bool> kPiezas[]{
    {TipoPieza::cr, "250 90 400 300 0 0 0 12 2", false},
    {TipoPieza::cr, "250 90 400 300 10 0 5 12 2", true},
    {TipoPieza::esp1, "300 50 50 50 50 50 50 50 50 200 200 300 300 0 0 0 0 4", false},
    {TipoPieza::esp5, "300 0 20 30 100 200 200 200 200 0 0 0 0 4", false}};

Desarrollo DelAceptado() { return DesarrolloDe(*estado.pieza, SolidoDe(*estado.pieza)); }

/// The file of what is drawn.
std::string Fichero() {
  const std::string ruta = std::filesystem::temp_directory_path() / ("colocacion-" + std::to_string(getpid()) + ".dxf");
  EXPECT_TRUE(estado.oDXF->InsertEntities(estado.oDrawing) && estado.oDXF->Save(ruta));
  const std::string bytes = LeeFichero(ruta).value_or("");
  std::filesystem::remove(ruta);
  return bytes;
}

std::string Directo(const Sitios& sitios) {
  Mesa mesa;
  for (const Punto2 p : sitios) mesa.puntos.push_back({p.x, p.y, 0});
  EWdraw axew;
  axew.PonVista(&mesa);
  EXPECT_EQ(Desplegado(axew).fin, FinCorrida::completo);
  return Fichero();
}

class Colocaciones : public testing::Test, public VistaEWdraw, public Plataforma {
 protected:
  Colocaciones() { axew_.PonVista(this); }
  ~Colocaciones() override { estado = {}; }
  void Acepta(std::size_t cual) {
    Configura();
    estado.sRutaPrograma = DUKTORES_RAIZ "/";
    const auto& [tipo, textos, dosPiezas] = kPiezas[cual];
    Aceptada(tipo, textos, dosPiezas);
    estado.plataforma = this;
    colocacion_.emplace(DelAceptado);
    modelo_ = {{}};
    vez_ = 0;
    detalles_.clear();
  }

  std::optional<Punto3> EligePunto(EWdraw&) override { return responde_(); }
  void CajaMensaje(std::string_view, EstiloMensaje, std::string_view) override { detalles_.push_back(detalle_); }
  void PonDetalle(std::string_view detalle) override { detalle_ = detalle; }

  int Hasta(int n) { return std::uniform_int_distribution(0, n - 1)(azar_); }
  /// A change to lists that are kept here too.
  void Apunta(Sitios sitios) {
    modelo_.resize(++vez_);
    modelo_.push_back(std::move(sitios));
  }
  void Cambia(int cual) {
    const auto vale = [&] { EXPECT_EQ(colocacion_->Elegidas(), modelo_[vez_]); };
    if (cual == 0 && colocacion_->Deshace()) --vez_, vale();
    if (cual == 1 && colocacion_->Rehace()) ++vez_, vale();
    const bool nueva = (cual == 2 && colocacion_->PonJunta()) || (cual == 3 && colocacion_->PonTodas());
    for (std::size_t n = modelo_[vez_].size() + 1; nueva && n <= colocacion_->Elegidas().size(); ++n) {
      const Sitios todas = colocacion_->Elegidas();
      Apunta({todas.begin(), todas.begin() + static_cast<std::ptrdiff_t>(n)});
    }
    if (cual != 4 || !colocacion_->Completa()) return;
    const int fijas = static_cast<int>(colocacion_->Puestas().size() - modelo_[vez_].size());
    const int n = Hasta(static_cast<int>(modelo_[vez_].size())), cosa = n + fijas;
    const Punto2 mas{Hasta(4000) / 7.0 - 200, Hasta(4000) / 3.0 - 500};
    Sitios sitios = modelo_[vez_];
    for (const auto i : {std::optional<std::size_t>(cosa), colocacion_->BloqueDe(static_cast<std::size_t>(cosa))}) {
      if (i) sitios[*i - static_cast<std::size_t>(fijas)] = sitios[*i - static_cast<std::size_t>(fijas)] + mas;
    }
    if (colocacion_->Mueve(static_cast<std::size_t>(cosa), mas)) Apunta(sitios), vale();
  }

  EWdraw axew_;
  std::optional<Colocacion> colocacion_;
  std::function<std::optional<Punto3>()> responde_;
  std::vector<Sitios> modelo_;
  std::size_t vez_ = 0;
  std::string detalle_;
  std::vector<std::string> detalles_;  // of each box
  std::mt19937 azar_;
};

TEST_F(Colocaciones, AnyWayToThePlacesGivesTheFileOfThesePlaces) {
  const auto semilla = std::random_device{}();
  azar_.seed(semilla);
  responde_ = [&]() -> std::optional<Punto3> {
    if (const int hace = Hasta(14); hace < 6) return Cambia(std::max(hace - 2, 0)), std::nullopt;
    const Punto3 p{Hasta(30000) / 7.0, Hasta(30000) / 11.0 - 1000, 0};
    Sitios sitios = modelo_[vez_];
    sitios.push_back({p.x, p.y});
    Apunta(sitios);
    return p;
  };
  for (std::size_t vez = 0; vez < 8 * std::size(kPiezas); ++vez) {
    SCOPED_TRACE("seed " + std::to_string(semilla) + " turn " + std::to_string(vez));
    Acepta(vez % std::size(kPiezas));
    estado.iExacto = vez & 4;
    for (int paso = 0; paso < 12; ++paso) {
      colocacion_->Despliega(axew_);
      Cambia(Hasta(5));
    }
    while (colocacion_->Despliega(axew_).fin != FinCorrida::completo) Cambia(3);
    ASSERT_EQ(colocacion_->Elegidas(), modelo_[vez_]);
    const std::string fichero = Fichero();
    ASSERT_TRUE(fichero == Directo(modelo_[vez_]) && fichero.size() > 10000);
  }
}

TEST_F(Colocaciones, PlacesAllAsTheBatchProgramWithoutABoxMore) {
  for (std::size_t cual = 0; cual < std::size(kPiezas); ++cual) {
    Acepta(cual);
    responde_ = [&] { return colocacion_->PonTodas(), std::nullopt; };
    const Corrida corrida = colocacion_->Despliega(axew_);
    EXPECT_EQ(corrida.fin, FinCorrida::completo);
    EXPECT_EQ(colocacion_->Elegidas(), Reparte(DelAceptado().patron, FormatoDeEstado()));
    EXPECT_EQ(detalles_.size(), 1U);
    for (std::size_t i = 0; i < colocacion_->Cosas().size(); ++i)
      EXPECT_TRUE(colocacion_->Solapadas(i, colocacion_->Puestas()[i]).empty()) << colocacion_->Nombre(i);
  }
}

// Two clicks, one beside the second, the rest: a box for each that follows a click, and nothing lies on anything.
TEST_F(Colocaciones, TheRestGoesBesideWhatIsPlaced) {
  Acepta(2);
  estado.dIdioma = 10000;
  int vez = 0;
  responde_ = [&]() -> std::optional<Punto3> {
    if (++vez <= 2) return Punto3{3000.0 * vez, 700, 0};
    vez == 3 ? colocacion_->PonJunta() : colocacion_->PonTodas();
    return std::nullopt;
  };
  EXPECT_EQ(colocacion_->Despliega(axew_).fin, FinCorrida::completo);
  EXPECT_EQ(detalles_.size(), 3U);
  EXPECT_EQ(detalles_[0] + "|" + detalles_[1] + "|" + detalles_[2].substr(detalles_[2].find('(')),
            "Corner 1 (1 of 8)|Title block: Corner 1 (1 of 8)|(2 of 8)");
  for (std::size_t i = 0; i < 16; ++i)
    EXPECT_TRUE(colocacion_->Solapadas(i, colocacion_->Puestas()[i]).empty()) << colocacion_->Nombre(i);
  // A shape that is dropped on another takes its block along, and both sides know.
  const Sitios antes = colocacion_->Elegidas();
  EXPECT_TRUE(colocacion_->Mueve(0, antes[4] - antes[0]));
  const Sitios& ahora = colocacion_->Puestas();
  EXPECT_EQ(ahora[1] - ahora[0], antes[1] - antes[0]);
  EXPECT_EQ(colocacion_->Solapadas(0, ahora[0]).front(), 4U);
  EXPECT_EQ(colocacion_->Solapadas(4, ahora[4]).front(), 0U);
}

}  // namespace
}  // namespace duktores
