#include "batch/senales.h"

#include <signal.h>

namespace duktores {

namespace {

constexpr int kSenales[] = {SIGINT, SIGTERM, SIGHUP};

volatile sig_atomic_t recibida = 0, cuantas = 0;

void Anota(int senal) {
  recibida = senal;
  cuantas = cuantas + 1;
}

}  // namespace

void AtiendeSenales() {
  for (const int senal : kSenales) {
    struct sigaction antes {
    }, ahora{};
    // Without SA_RESTART: a read that waits for a list ends.
    ahora.sa_handler = Anota;
    if (sigaction(senal, nullptr, &antes) == 0 && antes.sa_handler != SIG_IGN) sigaction(senal, &ahora, nullptr);
  }
}

void SinSenales() {
  sigset_t senales;
  sigemptyset(&senales);
  for (const int senal : kSenales) sigaddset(&senales, senal);
  pthread_sigmask(SIG_BLOCK, &senales, nullptr);
}

int SenalRecibida() { return recibida; }

int SenalesRecibidas() { return cuantas; }

void ExigeSeguir() {
  if (recibida != 0) throw Interrumpido();
}

}  // namespace duktores
