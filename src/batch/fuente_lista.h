#pragma once
// Where a job list comes from: a file, which is read as often as it is gone through, or a pipe, which is kept.

#include <sys/stat.h>
#include <sys/types.h>

#include <string>

#include "jobs/flujo_lista.h"
#include "state/descriptor.h"

namespace duktores {

class FuenteLista {
 public:
  /// A file, or standard input for "-". Of a pipe all is read at once; more than `maximo` bytes are an ErrorLista. What
  /// can't be read throws std::system_error, here and later.
  FuenteLista(const std::string& ruta, std::size_t maximo);

  /// Reads from the start. The source must outlive it. A signal that ends the program throws Interrumpido.
  LeeTrozo DesdeElPrincipio();
  /// Throws ErrorLista if the file is no longer what it was at first.
  void ExigeIgual() const;

 private:
  void LeeTodo(std::size_t maximo);

  Descriptor fichero_;
  struct stat datos_ {};
  off_t inicio_ = 0;
  std::string todo_;  // of a pipe
};

}  // namespace duktores
