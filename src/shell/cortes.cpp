#include "shell/cortes.h"

#include <algorithm>
#include <filesystem>

#include "piece/numeros_texto.h"
#include "shell/nombres.h"
#include "shell/texto_veredicto.h"
#include "state/estado.h"
#include "state/textos.h"

namespace duktores {

namespace {

bool Milimetros() { return estado.iUnidad == 1; }

double Milimetro() { return Milimetros() ? 1 : 1 / 25.4; }

// One beside the other.
void Reparte(std::vector<ParteCorte>& partes) {
  constexpr double kHueco = 10;
  double x = 0;
  for (ParteCorte& parte : partes) {
    parte.sitio = {x, 0};
    x += parte.recorte.tamano.x + kHueco * Milimetro();
  }
}

}  // namespace

bool SeEscribe(const Recorte& recorte, const Veredicto& veredicto, Cuales cuales) {
  constexpr std::size_t kTriangulo = 3;
  if (cuales == Cuales::todas) return recorte.contorno.size() >= kTriangulo;
  return veredicto.Cierto() && !recorte.falta;
}

Cortes CortesDe(const std::string& nombre, const Solido& solido, const Patron& patron) {
  const Maquina& maquina = estado.maquina;
  const std::string portatil = NombrePortatil(nombre);
  Cortes cortes;
  for (const FormaPatron& forma : patron.formas) {
    if (!forma.contorno.empty()) cortes.partes.push_back({RecorteDe(solido, forma, maquina, Milimetro()), {}});
  }
  const std::string cuantas = "of" + std::to_string(cortes.partes.size());
  for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
    ParteCorte& parte = cortes.partes[i];
    const std::string suyo = portatil + "-" + std::to_string(i + 1) + cuantas;
    if (maquina.marcas) parte.marca = MarcaDe(parte.recorte, suyo, Milimetro());
    cortes.ficheros.push_back((maquina.juntas ? portatil + "-cut" : suyo) + ".dxf");
  }
  if (maquina.juntas) Reparte(cortes.partes);
  return cortes;
}

std::string TextoSinCorte(const Cortes& cortes, const Veredicto& veredicto) {
  const std::string inicio = Texto(texto::kSinCorte) + " ";
  if (!veredicto.Cierto()) return inicio + Texto(texto::kCorteFalso);
  std::string faltas;
  for (const auto& [recorte, marca, sitio] : cortes.partes) {
    if (!recorte.falta) continue;
    const bool cruza = *recorte.falta == FaltaRecorte::cruce;
    faltas += (faltas.empty() ? inicio : "; ") + TextoForma(recorte.forma) + ": " +
              Texto(cruza ? texto::kCruce : texto::kSinArea);
  }
  return faltas;
}

Guardado GuardaCortes(Cortes& cortes, const Veredicto& veredicto, Cuales cuales, const std::string& carpeta,
                      std::vector<std::string>& escritos, std::string& ruta) {
  std::vector<ParteCorte> juntas;
  const auto guarda = [&](const std::string& fichero, std::span<const ParteCorte> partes) {
    ruta = std::filesystem::path(carpeta) / fichero;
    Guardado guardado = GuardaCorte(ruta, partes, estado.maquina, Milimetros());
    if (guardado) escritos.push_back(fichero);
    return guardado;
  };
  std::string comun;
  for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
    const ParteCorte& parte = cortes.partes[i];
    if (!SeEscribe(parte.recorte, veredicto, cuales)) {
      cortes.ficheros[i].clear();
    } else if (estado.maquina.juntas) {
      comun = cortes.ficheros[i];
      juntas.push_back(parte);
    } else if (Guardado guardado = guarda(cortes.ficheros[i], {&parte, 1}); !guardado) {
      return guardado;
    }
  }
  return juntas.empty() ? Guardado{} : guarda(comun, juntas);
}

std::string ListaDobleces(const Cortes& cortes, HabitoCsv habito) {
  constexpr int kCoordenada = 6, kAngulo = 3;
  FilaCsv cabeza(habito);
  for (const char* columna : {"file", "shape", "number", "length", "angle", "direction", "x1", "y1", "x2", "y2"}) {
    cabeza.Texto(columna);
  }
  std::string lista = std::string(kMarcaUtf8) + cabeza.Linea();
  for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
    const auto& [recorte, marca, sitio] = cortes.partes[i];
    for (const DoblezRecorte& d : recorte.dobleces) {
      const Punto2 p = recorte.En(d.enP) + sitio, q = recorte.En(d.enQ) + sitio;
      FilaCsv fila(habito);
      fila.Texto(cortes.ficheros[i]).Texto(TextoForma(recorte.forma)).Numero(d.numero, 0);
      fila.Numero(Distancia(p, q), kCoordenada).Numero(d.doblez.grados, kAngulo);
      fila.Texto(d.doblez.haciaArriba ? "up" : "down");
      for (const double v : {p.x, p.y, q.x, q.y}) fila.Numero(v, kCoordenada);
      lista += fila.Linea();
    }
  }
  return lista;
}

std::string FicheroDobleces(const std::string& nombre) { return NombrePortatil(nombre) + "-bends.csv"; }

}  // namespace duktores
