#pragma once
// Works jobs on several threads while they come in, and hands the results on in the order of the jobs. Only so many
// jobs wait at a time.

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "batch/trabajo.h"

namespace duktores {

class Obreros {
 public:
  using Hace = std::function<Resultado(const Trabajo&)>;
  using Entrega = std::function<void(const Trabajo&, const Resultado&)>;

  /// `hace` runs on any of `cuantos` threads, `entrega` on one at a time.
  Obreros(unsigned cuantos, Hace hace, Entrega entrega);
  ~Obreros();

  /// Waits for a place. What `hace` or `entrega` has thrown meanwhile comes out here or from Acaba; a signal that ends
  /// the program throws Interrumpido.
  void Pon(Trabajo&& trabajo);
  /// Waits for all jobs; after a signal only for those that have been begun.
  void Acaba();

 private:
  struct Puesto {
    Trabajo trabajo;
    std::optional<Resultado> resultado;
  };

  void Obrero();
  void EntregaHechos();

  Hace hace_;
  Entrega entrega_;
  std::size_t cuantos_;
  std::mutex cerrojo_;
  std::condition_variable hay_, sitio_;  // a job to begin; room for more
  std::deque<Puesto> puestos_;           // in order; the first is the next to be handed on
  std::size_t empezados_ = 0;            // of these
  bool cerrado_ = false;                 // no more come
  std::exception_ptr fallo_;
  std::vector<std::thread> hilos_;
};

}  // namespace duktores
