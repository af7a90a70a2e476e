#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <limits>
#include <mutex>
#include <system_error>
#include <thread>

#include "nest/revisa.h"
#include "nest/tanda.h"

namespace duktores {

namespace {

using Reloj = std::chrono::steady_clock;
constexpr double kInfinito = 1e300;

enum class Orden : std::uint8_t { area, largo, caja };
constexpr int kOrdenes = 3;
constexpr double kAltos[] = {0.05, 0.5, 0.01, 2};

/// The best layout of all starts. Of two that cost the same it is that of the earlier start.
class Mejor {
 public:
  Mejor(const EncargoNido& encargo, const VigiaNido& vigia) : encargo_(encargo), vigia_(vigia) {}
  /// False if the layout isn't sound. Such a one is taken only where there is no other.
  bool Ofrece(const Tanda& tanda, double coste, std::size_t salida) {
    Nido nido = tanda.Resultado();
    const bool sano = RevisaChapas(encargo_, nido).empty();
    if (!sano) coste = kInfinito;
    const std::lock_guard guarda(cerrojo_);
    if (nido_ && (coste > coste_ || (coste == coste_ && salida >= salida_))) return sano;
    coste_ = coste;
    salida_ = salida;
    nido_ = std::move(nido);
    if (sano) tanda_ = tanda;
    vigia_.mejora(*nido_);
    return sano;
  }
  /// The layout itself; none as long as there is no sound one.
  std::optional<Tanda> Sana() {
    const std::lock_guard guarda(cerrojo_);
    return tanda_;
  }
  Nido Toma() { return nido_ ? std::move(*nido_) : Nido{}; }

 private:
  const EncargoNido& encargo_;
  const VigiaNido& vigia_;
  std::mutex cerrojo_;
  std::optional<Nido> nido_;
  std::optional<Tanda> tanda_;
  double coste_ = 0;
  std::size_t salida_ = 0;
};

class Salida {
 public:
  Salida(const EncargoNido& encargo, Moldes& moldes, const std::vector<std::size_t>& partes,
         const EsfuerzoNido& esfuerzo, std::size_t numero)
      : moldes_(moldes),
        tanteo_(moldes),
        azar_(esfuerzo.semilla * 1000003 + numero),
        numero_(numero),
        margen_(moldes.Escala() * encargo.margen),
        actual_(encargo, moldes) {
    for (const std::size_t parte : partes) actual_.turnos.push_back({parte});
  }

  /// The very first layout is there at once, and the first start's next one is whole however long it takes, unless the
  /// watcher stops it.
  void Trabaja(const EsfuerzoNido& esfuerzo, Reloj::time_point hasta, const VigiaNido& vigia, Mejor& mejor) {
    if (numero_ == 0) {
      Tanda deprisa = actual_;
      deprisa.Estantes();
      mejor.Ofrece(deprisa, deprisa.Coste(), numero_);
    }
    const auto plazo = [&](Reloj::time_point fin) {
      return [&, fin] { return vigia.sigue() && (esfuerzo.vueltas || Reloj::now() < fin); };
    };
    Ordena(actual_, numero_);
    const bool entera = actual_.Coloca(tanteo_, 0, kInfinito, numero_ == 0 ? vigia.sigue : plazo(hasta));
    coste_ = optimo_ = entera ? actual_.Coste() : kInfinito;
    if (!entera && numero_ > 0) return;
    if (!mejor.Ofrece(actual_, coste_, numero_)) coste_ = optimo_ = kInfinito;
    if (actual_.turnos.size() < 2 || actual_.Hojas().empty()) return;
    Tanda sana = actual_;
    tardes_.assign(kTardes, coste_);
    const auto desde = Reloj::now();
    const auto medio = desde + std::chrono::duration_cast<Reloj::duration>(kParteOrdenes * (hasta - desde));
    const int ordenes = esfuerzo.vueltas ? (*esfuerzo.vueltas + 1) / 2 : kSinFin;
    CambiaOrdenes(ordenes, plazo(medio), sana, mejor);
    if (optimo_ >= kInfinito) return;
    Aprieta(esfuerzo.vueltas ? *esfuerzo.vueltas - ordenes : kSinFin, plazo(hasta), sana, mejor, !esfuerzo.vueltas);
  }

 private:
  static constexpr std::size_t kTardes = 10;
  static constexpr int kSinFin = std::numeric_limits<int>::max();
  static constexpr double kParteOrdenes = 0.2;  // of the time

  void CambiaOrdenes(int vueltas, const std::function<bool()>& sigue, Tanda& sana, Mejor& mejor) {
    for (int vuelta = 0; vuelta < vueltas && sigue(); ++vuelta) {
      if (!Vuelta(vuelta, sigue) || coste_ >= optimo_) continue;
      if (mejor.Ofrece(actual_, coste_, numero_)) {
        optimo_ = coste_;
        sana = actual_;
      } else if (optimo_ < kInfinito) {
        actual_ = sana;
        coste_ = optimo_;
      } else {
        coste_ = kInfinito;
      }
    }
  }

  // Sheets that have less room now than what lies there needs: the emptiest one, and some others.
  struct Reto {
    std::vector<std::size_t> hojas;
    std::vector<Punto2> tamanos;
    std::vector<Suelta> partes;
    bool echa;  // one part may not stay on the emptiest sheet; else a strip of that is taken away
  };
  Reto Reta(const Tanda& tanda, double paso) {
    constexpr std::size_t kOtras = 6, kPartes = 400;
    constexpr double kEcha = 0.7, kEntra = 0.8;
    const auto& hojas = tanda.Hojas();
    const auto floja = std::ranges::min_element(hojas, {}, &Tanda::Hoja::area);
    Reto reto{{static_cast<std::size_t>(floja - hojas.begin())}, {}, {}, hojas.size() > 1 && azar_.Parte() < kEcha};
    std::size_t cuantas = floja->puestas.size();
    for (std::size_t i = hojas.size() > 1 ? 1 + azar_.Menor(kOtras) : 0; i > 0; --i) {
      const std::size_t otra = azar_.Menor(hojas.size());
      cuantas += hojas[otra].puestas.size();
      if (cuantas > kPartes) break;
      if (std::ranges::find(reto.hojas, otra) == reto.hojas.end()) reto.hojas.push_back(otra);
    }
    for (const std::size_t hoja : reto.hojas) reto.tamanos.push_back(tanda.Tamano(hojas[hoja].chapa));
    reto.partes = tanda.Sueltas(reto.hojas);
    reto.echa = reto.echa && reto.hojas.size() > 1;
    if (!reto.echa) {
      reto.tamanos[0].x = (1 - paso) * floja->derecha + margen_;
      return reto;
    }
    Suelta& fuera = reto.partes[azar_.Menor(floja->puestas.size())];
    fuera.vedada = 0;
    // What comes in its place has to be smaller.
    const double entra = azar_.Parte() < 0.5 ? 0 : kEntra * moldes_.Area(fuera.parte);
    for (Suelta& parte : reto.partes) {
      if (parte.hoja != 0 && moldes_.Area(parte.parte) > entra) parte.vedada = 0;
    }
    return reto;
  }

  // Parts overlap for want of room, and are moved apart again.
  void Aprieta(int vueltas, const std::function<bool()>& sigue, Tanda& sana, Mejor& mejor, bool juntas) {
    constexpr double kPasoMinimo = 0.002, kPasoMaximo = 0.25;
    constexpr std::size_t kDemasiadas = 3000;  // parts on a sheet
    Separador separador(moldes_, margen_, azar_);
    double paso = 0.03;
    for (int vuelta = 0; vuelta < vueltas && sigue(); ++vuelta) {
      if (juntas) {
        const auto otra = mejor.Sana();
        if (otra && otra->Coste() < sana.Coste()) sana = *otra;
      }
      Reto reto = Reta(sana, paso);
      const bool sirve = reto.partes.size() > 1 && reto.partes.size() <= kDemasiadas;
      if (!sirve && sana.Hojas().size() == 1) return;
      if (!sirve) continue;
      Tanda nueva = sana;
      const bool sueltas = separador.Separa(reto.partes, reto.tamanos, sigue);
      if (sueltas) nueva.Toma(reto.hojas, reto.partes);
      if (sueltas && nueva.Coste() < sana.Coste() && mejor.Ofrece(nueva, nueva.Coste(), numero_)) {
        sana = std::move(nueva);
        paso = std::min(1.5 * paso, kPasoMaximo);
      } else if (!reto.echa) {
        paso = std::max(paso / 2, kPasoMinimo);
      }
    }
  }

  // The ways to begin: other orders, and other tastes.
  void Ordena(Tanda& tanda, std::size_t manera) {
    const auto orden = static_cast<Orden>(manera % kOrdenes);
    tanda.gusto.alto = kAltos[(manera / kOrdenes + manera) % std::size(kAltos)];
    const auto talla = [&](const Turno& t) {
      const Extremos& caja = moldes_.ExtremosEn(t.parte, 0);
      if (orden == Orden::largo) return std::max(caja.Ancho(), caja.Alto());
      return orden == Orden::caja ? caja.Ancho() * caja.Alto() : moldes_.Area(t.parte);
    };
    std::ranges::stable_sort(tanda.turnos, std::ranges::greater{}, talla);
  }

  // Accepts what is no worse than now, or than some rounds ago.
  bool Vuelta(int vuelta, const std::function<bool()>& sigue) {
    constexpr int kManeras = 6;
    Tanda prueba = actual_;
    std::size_t desde = 0;
    if (vuelta < kManeras) {
      Ordena(prueba, numero_ + 1 + static_cast<std::size_t>(vuelta));
    } else {
      desde = Cambia(prueba);
    }
    double& tarde = tardes_[static_cast<std::size_t>(vuelta) % kTardes];
    const double tope = std::max(coste_, tarde);
    const bool vale = prueba.Coloca(tanteo_, desde, tope, sigue);
    if (vale) {
      actual_ = std::move(prueba);
      coste_ = actual_.Coste();
    }
    tarde = coste_;
    return vale;
  }

  // Each gives the first place of the order that is another now.
  std::size_t Cambia(Tanda& tanda) {
    if (tanda.Hojas().size() > 2 && azar_.Parte() < 0.7) return Redistribuye(tanda);
    const double suerte = azar_.Parte();
    if (suerte < 0.4) return Intercambia(tanda);
    if (suerte < 0.6) return Traslada(tanda);
    if (suerte < 0.7 && moldes_.Giros().size() > 1) return Gira(tanda);
    return Arruina(tanda);
  }
  // Clears some sheets, most often the emptiest one with them, and lays their parts anew, the larger ones first.
  std::size_t Redistribuye(Tanda& tanda) {
    const auto& hojas = tanda.Hojas();
    const auto floja = std::ranges::min_element(hojas, {}, &Tanda::Hoja::area);
    std::vector<std::size_t> cuales;
    if (azar_.Parte() < 0.8) cuales.push_back(static_cast<std::size_t>(floja - hojas.begin()));
    for (std::size_t i = 1 + azar_.Menor(2); i > 0; --i) cuales.push_back(azar_.Menor(hojas.size()));
    const std::size_t desde = tanda.Aparta(cuales);
    const double ruido = azar_.Parte();
    std::vector<std::pair<double, Turno>> sueltos;
    for (std::size_t i = desde; i < tanda.turnos.size(); ++i) {
      sueltos.emplace_back(moldes_.Area(tanda.turnos[i].parte) * (1 + 2 * ruido * azar_.Parte()), tanda.turnos[i]);
    }
    std::ranges::stable_sort(sueltos, std::ranges::greater{}, [](const auto& s) { return s.first; });
    for (std::size_t i = 0; i < sueltos.size(); ++i) tanda.turnos[desde + i] = sueltos[i].second;
    return desde;
  }
  std::size_t Intercambia(Tanda& tanda) {
    auto& turnos = tanda.turnos;
    const std::size_t i = azar_.Menor(turnos.size());
    std::size_t j = i;
    for (int intento = 0; intento < 8 && turnos[i].parte == turnos[j].parte; ++intento) j = azar_.Menor(turnos.size());
    std::swap(turnos[i], turnos[j]);
    return std::min(i, j);
  }
  std::size_t Traslada(Tanda& tanda) {
    auto& turnos = tanda.turnos;
    const std::size_t i = azar_.Menor(turnos.size()), j = azar_.Menor(turnos.size());
    const Turno turno = turnos[i];
    turnos.erase(turnos.begin() + static_cast<std::ptrdiff_t>(i));
    turnos.insert(turnos.begin() + static_cast<std::ptrdiff_t>(j), turno);
    return std::min(i, j);
  }
  std::size_t Gira(Tanda& tanda) {
    const std::size_t i = azar_.Menor(tanda.turnos.size());
    auto& giro = tanda.turnos[i].giro;
    giro = giro ? std::nullopt : std::optional(azar_.Menor(moldes_.Giros().size()));
    return i;
  }
  // Takes neighbours from a sheet, and some of the emptiest one, and lays them first, the larger ones before.
  std::size_t Arruina(Tanda& tanda) {
    const auto& hojas = tanda.Hojas();
    if (hojas.empty()) return Intercambia(tanda);
    std::vector<std::size_t> fuera;
    const Tanda::Hoja& hoja = hojas[azar_.Menor(hojas.size())];
    const Punto2 centro = hoja.puestas[azar_.Menor(hoja.puestas.size())].sitio;
    std::vector<std::pair<double, std::size_t>> cerca;
    for (std::size_t i = 0; i < hoja.puestas.size(); ++i) {
      cerca.emplace_back(Distancia(hoja.puestas[i].sitio, centro), hoja.turnos[i]);
    }
    std::ranges::sort(cerca);
    const std::size_t cuantos = std::min(cerca.size(), 2 + azar_.Menor(5));
    for (std::size_t i = 0; i < cuantos; ++i) fuera.push_back(cerca[i].second);
    const auto floja = std::ranges::min_element(hojas, {}, &Tanda::Hoja::area);
    for (std::size_t i = azar_.Menor(4); i > 0; --i) fuera.push_back(floja->turnos[azar_.Menor(floja->turnos.size())]);
    std::ranges::sort(fuera);
    fuera.erase(std::unique(fuera.begin(), fuera.end()), fuera.end());

    auto& turnos = tanda.turnos;
    std::vector<std::pair<double, Turno>> sueltos;
    for (const std::size_t i : fuera) {
      sueltos.emplace_back(moldes_.Area(turnos[i].parte) * (1 + azar_.Parte()), Turno{turnos[i].parte});
    }
    for (auto i = fuera.rbegin(); i != fuera.rend(); ++i)
      turnos.erase(turnos.begin() + static_cast<std::ptrdiff_t>(*i));
    std::ranges::stable_sort(sueltos, std::ranges::greater{}, [](const auto& s) { return s.first; });
    const auto sitio = turnos.begin() + static_cast<std::ptrdiff_t>(fuera.front());
    std::vector<Turno> nuevos;
    for (const auto& [talla, turno] : sueltos) nuevos.push_back(turno);
    turnos.insert(sitio, nuevos.begin(), nuevos.end());
    return fuera.front();
  }

  Moldes& moldes_;
  Tanteo tanteo_;
  Azar azar_;
  std::size_t numero_;
  double margen_;
  Tanda actual_;
  double coste_ = 0, optimo_ = 0;
  std::vector<double> tardes_;
};

// The same work on so many threads, or on as many as the system gives. What one of them throws comes out here.
void EnHilos(std::size_t cuantos, const std::function<void()>& trabajo) {
  std::mutex cerrojo;
  std::exception_ptr fallo;
  const auto obrero = [&] {
    try {
      trabajo();
    } catch (...) {
      const std::lock_guard guarda(cerrojo);
      fallo = std::current_exception();
    }
  };
  if (cuantos == 0) return;
  {
    std::vector<std::jthread> otros;
    try {
      while (otros.size() + 1 < cuantos) otros.emplace_back(obrero);
    } catch (const std::system_error&) {
    }
    obrero();
  }
  if (fallo) std::rethrow_exception(fallo);
}

}  // namespace

Nido Anida(const EncargoNido& encargo, const EsfuerzoNido& esfuerzo, const VigiaNido& vigia) {
  constexpr std::size_t kSalidas = 4;
  const auto hasta =
      Reloj::now() + std::chrono::duration_cast<Reloj::duration>(std::chrono::duration<double>(esfuerzo.segundos));
  Moldes moldes(encargo);
  const Tanda tanda(encargo, moldes);
  std::vector<std::size_t> partes;
  std::vector<NoPuesta> faltan;
  for (std::size_t i = 0; i < encargo.partes.size(); ++i) {
    const int cantidad = encargo.partes[i].cantidad;
    if (cantidad <= 0) continue;
    const bool cabe = moldes.Sirve(i) && tanda.CabeEnAlguna(i);
    if (!cabe) faltan.push_back({i, cantidad, moldes.Sirve(i) ? FaltaNido::noCabe : FaltaNido::sinArea});
    if (cabe) partes.insert(partes.end(), static_cast<std::size_t>(cantidad), i);
  }
  Mejor mejor(encargo, vigia);
  const std::size_t hilos = std::max(1U, esfuerzo.hilos), salidas = esfuerzo.vueltas ? kSalidas : hilos;
  std::atomic<std::size_t> siguiente = 0;
  EnHilos(partes.empty() ? 0 : std::min(hilos, salidas), [&] {
    for (std::size_t i = siguiente++; i < salidas; i = siguiente++) {
      Salida(encargo, moldes, partes, esfuerzo, i).Trabaja(esfuerzo, hasta, vigia, mejor);
    }
  });
  Nido nido = mejor.Toma();
  nido.faltan.insert(nido.faltan.begin(), faltan.begin(), faltan.end());
  return nido;
}

}  // namespace duktores
