#include "batch/obreros.h"

#include <algorithm>
#include <system_error>

#include "batch/senales.h"

namespace duktores {

namespace {

constexpr unsigned kMaximoHilos = 256;
// A long job holds up the answers of so many others before work stops.
constexpr std::size_t kPuestosPorHilo = 64;

}  // namespace

Obreros::Obreros(unsigned cuantos, Hace hace, Entrega entrega)
    : hace_(std::move(hace)), entrega_(std::move(entrega)), cuantos_(std::min(cuantos, kMaximoHilos)) {
  hilos_.reserve(cuantos_);
}

Obreros::~Obreros() {
  {
    const std::lock_guard guarda(cerrojo_);
    cerrado_ = true;
    empezados_ = puestos_.size();  // what waits is not begun any more
  }
  hay_.notify_all();
  for (std::thread& hilo : hilos_) hilo.join();
}

void Obreros::Pon(Trabajo&& trabajo) {
  std::unique_lock guarda(cerrojo_);
  sitio_.wait(guarda, [&] { return puestos_.size() < cuantos_ * kPuestosPorHilo || fallo_ || SenalRecibida() != 0; });
  if (fallo_) std::rethrow_exception(fallo_);
  ExigeSeguir();
  puestos_.push_back({std::move(trabajo), std::nullopt});
  guarda.unlock();
  hay_.notify_one();
  if (hilos_.size() == cuantos_) return;
  try {
    hilos_.emplace_back(&Obreros::Obrero, this);
  } catch (const std::system_error&) {
    if (hilos_.empty()) throw;  // else those that there are do all the work
    const std::lock_guard otra(cerrojo_);
    cuantos_ = hilos_.size();
  }
}

void Obreros::Acaba() {
  {
    const std::lock_guard guarda(cerrojo_);
    cerrado_ = true;
  }
  hay_.notify_all();
  for (std::thread& hilo : hilos_) hilo.join();
  hilos_.clear();
  if (fallo_) std::rethrow_exception(fallo_);
}

void Obreros::EntregaHechos() {
  while (!puestos_.empty() && puestos_.front().resultado) {
    entrega_(puestos_.front().trabajo, *puestos_.front().resultado);
    puestos_.pop_front();
    --empezados_;
  }
}

void Obreros::Obrero() {
  SinSenales();
  std::unique_lock guarda(cerrojo_);
  try {
    for (;;) {
      hay_.wait(guarda, [&] { return empezados_ < puestos_.size() || cerrado_ || fallo_; });
      if (empezados_ >= puestos_.size() || fallo_ || SenalRecibida() != 0) break;
      Puesto& puesto = puestos_[empezados_++];  // stays where it is while others come and go at the ends
      guarda.unlock();
      Resultado resultado = hace_(puesto.trabajo);
      guarda.lock();
      puesto.resultado = std::move(resultado);
      EntregaHechos();
      // Whoever brings the jobs is woken for many places, not for each.
      if (puestos_.size() <= cuantos_ * kPuestosPorHilo / 2) sitio_.notify_one();
    }
  } catch (...) {
    if (!guarda.owns_lock()) guarda.lock();
    fallo_ = std::current_exception();
  }
  hay_.notify_all();
  sitio_.notify_one();
}

}  // namespace duktores
