// Preloaded into a program it lets one call of the C library fail, or ends the program there, once main has begun:
//   FALLA="fsync 2 5"    the second fsync fails with errno 5; the errno 0 kills the program instead
//   FALLA_CUENTA=FILE    appends to FILE how many calls of each function there were, when main has ended

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum Cual { abre, lee, mira, escribe, sincroniza, renombra, chown_, modo, atributo, cierra, memoria, kCuantas };
constexpr const char* kNombres[kCuantas] = {"open",   "read",   "stat",  "write", "fsync", "rename",
                                            "fchown", "fchmod", "xattr", "close", "malloc"};

std::atomic<int> cuentas[kCuantas];
std::atomic<bool> armado = false;
int cual = -1, vez = 0, numero = 0;

/// Whether this call is the one; `errno` says why it fails.
bool Falla(Cual esta) {
  if (!armado || ++cuentas[esta] != vez || esta != cual) return false;
  if (numero == 0) raise(SIGKILL);
  errno = numero;
  return true;
}

template <class Funcion>
Funcion Verdadera(const char* nombre) {
  return reinterpret_cast<Funcion>(dlsym(RTLD_NEXT, nombre));
}

void Cuenta() {
  armado = false;
  const char* fichero = std::getenv("FALLA_CUENTA");
  std::FILE* salida = fichero != nullptr ? std::fopen(fichero, "a") : nullptr;
  if (salida == nullptr) return;
  for (int i = 0; i < kCuantas; ++i) std::fprintf(salida, "%s %d\n", kNombres[i], cuentas[i].load());
  std::fclose(salida);
}

int (*elMain)(int, char**, char**) = nullptr;

int Main(int argc, char** argv, char** entorno) {
  char nombre[16] = "";
  const char* orden = std::getenv("FALLA");
  if (orden != nullptr && std::sscanf(orden, "%15s %d %d", nombre, &vez, &numero) == 3) {
    while (++cual < kCuantas && std::strcmp(kNombres[cual], nombre) != 0) {
    }
  }
  armado = true;
  const int salida = elMain(argc, argv, entorno);
  Cuenta();
  return salida;
}

}  // namespace

extern "C" {

int __libc_start_main(int (*principal)(int, char**, char**), int argc, char** argv, void (*a)(), void (*b)(),
                      void (*c)(), void* pila) {
  using Inicio = int (*)(int (*)(int, char**, char**), int, char**, void (*)(), void (*)(), void (*)(), void*);
  elMain = principal;
  return Verdadera<Inicio>("__libc_start_main")(Main, argc, argv, a, b, c, pila);
}

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);

void* malloc(std::size_t n) { return Falla(memoria) ? nullptr : __libc_malloc(n); }
void* calloc(std::size_t n, std::size_t m) { return Falla(memoria) ? nullptr : __libc_calloc(n, m); }
void* realloc(void* p, std::size_t n) { return Falla(memoria) ? nullptr : __libc_realloc(p, n); }

// NOLINTBEGIN(cert-dcl50-cpp)
#define ABRE(nombre)                                                                 \
  int nombre(const char* ruta, int como, ...) {                                      \
    va_list resto;                                                                   \
    va_start(resto, como);                                                           \
    const mode_t derechos = (como & O_CREAT) != 0 ? va_arg(resto, mode_t) : 0;       \
    va_end(resto);                                                                   \
    if (Falla(abre)) return -1;                                                      \
    return Verdadera<int (*)(const char*, int, ...)>(#nombre)(ruta, como, derechos); \
  }
ABRE(open)
ABRE(open64)
// NOLINTEND(cert-dcl50-cpp)

#define LLAMADA(cual_, tipo, nombre, parametros, argumentos)  \
  tipo nombre parametros {                                    \
    if (Falla(cual_)) return -1;                              \
    return Verdadera<tipo(*) parametros>(#nombre) argumentos; \
  }
LLAMADA(lee, ssize_t, read, (int f, void* d, std::size_t n), (f, d, n))
LLAMADA(lee, ssize_t, pread, (int f, void* d, std::size_t n, off_t s), (f, d, n, s))
LLAMADA(mira, int, stat, (const char* r, struct stat* d) noexcept, (r, d))
LLAMADA(mira, int, lstat, (const char* r, struct stat* d) noexcept, (r, d))
LLAMADA(mira, int, fstat, (int f, struct stat* d) noexcept, (f, d))
LLAMADA(escribe, ssize_t, write, (int f, const void* d, std::size_t n), (f, d, n))
LLAMADA(sincroniza, int, fsync, (int f), (f))
LLAMADA(renombra, int, rename, (const char* a, const char* b) noexcept, (a, b))
LLAMADA(chown_, int, fchown, (int f, uid_t u, gid_t g) noexcept, (f, u, g))
LLAMADA(modo, int, fchmod, (int f, mode_t m) noexcept, (f, m))
LLAMADA(atributo, ssize_t, listxattr, (const char* r, char* d, std::size_t n) noexcept, (r, d, n))
LLAMADA(atributo, ssize_t, getxattr, (const char* r, const char* a, void* d, std::size_t n) noexcept, (r, a, d, n))
LLAMADA(atributo, int, fsetxattr, (int f, const char* a, const void* d, std::size_t n, int c) noexcept, (f, a, d, n, c))
LLAMADA(cierra, int, close, (int f), (f))
}
