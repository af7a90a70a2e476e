#include "batch/fuente_lista.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include "batch/senales.h"

namespace duktores {

namespace {

[[noreturn]] void NoSeLee(int numero) { throw std::system_error(numero, std::generic_category()); }

// `lee` is a read of one kind or another.
template <class Lee>
std::size_t Leidos(Lee lee) {
  for (;;) {
    ExigeSeguir();
    const ssize_t n = lee();
    if (n >= 0) return static_cast<std::size_t>(n);
    if (errno != EINTR) NoSeLee(errno);
  }
}

}  // namespace

FuenteLista::FuenteLista(const std::string& ruta, std::size_t maximo)
    : fichero_(ruta == "-" ? dup(STDIN_FILENO) : open(ruta.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (!fichero_ || fstat(fichero_.Numero(), &datos_) != 0) NoSeLee(errno);
  if (S_ISREG(datos_.st_mode)) {
    inicio_ = std::max(off_t{0}, lseek(fichero_.Numero(), 0, SEEK_CUR));
  } else {
    LeeTodo(maximo);
  }
}

void FuenteLista::LeeTodo(std::size_t maximo) {
  std::array<char, 1 << 16> trozo;
  while (const std::size_t n = Leidos([&] { return read(fichero_.Numero(), trozo.data(), trozo.size()); })) {
    if (todo_.size() + n > maximo) {
      throw ErrorLista("more than " + std::to_string(maximo) + " bytes come through the pipe, see --max-list");
    }
    todo_.append(trozo.data(), n);
  }
}

LeeTrozo FuenteLista::DesdeElPrincipio() {
  if (S_ISREG(datos_.st_mode)) {
    return [this, sitio = inicio_](std::span<char> trozo) mutable {
      const std::size_t n = Leidos([&] { return pread(fichero_.Numero(), trozo.data(), trozo.size(), sitio); });
      sitio += static_cast<off_t>(n);
      return n;
    };
  }
  return [resto = std::string_view(todo_)](std::span<char> trozo) mutable {
    ExigeSeguir();
    const std::size_t n = resto.copy(trozo.data(), trozo.size());
    resto.remove_prefix(n);
    return n;
  };
}

void FuenteLista::ExigeIgual() const {
  struct stat ahora {};
  if (fstat(fichero_.Numero(), &ahora) != 0) NoSeLee(errno);
  const auto cuando = [](const timespec& t) { return std::pair(t.tv_sec, t.tv_nsec); };
  if (S_ISREG(datos_.st_mode) && (ahora.st_size != datos_.st_size || cuando(ahora.st_mtim) != cuando(datos_.st_mtim))) {
    throw ErrorLista("the list was changed while it was read");
  }
}

}  // namespace duktores
