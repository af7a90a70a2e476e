#include "shell/cortes.h"

#include <algorithm>
#include <filesystem>

#include "piece/numeros_texto.h"
#include "shell/texto_veredicto.h"
#include "state/estado.h"
#include "state/nombres.h"
#include "state/textos.h"

namespace duktores {

namespace {

bool Milimetros() { return estado.iUnidad == 1; }

double Milimetro() { return Milimetros() ? 1 : kPulgadaPorMilimetro; }

// One beside the other.
void PonAlLado(std::vector<ParteCorte>& partes) {
  constexpr double kHueco = 10;
  double x = 0;
  for (ParteCorte& parte : partes) {
    parte.sitio = {x, 0};
    x += parte.recorte.tamano.x + kHueco * Milimetro();
  }
}

}  // namespace

bool SeCorta(const Recorte& recorte, const Veredicto& veredicto, Cuales cuales) {
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
  if (maquina.juntas) PonAlLado(cortes.partes);
  return cortes;
}

std::string TextoSinCorte(const Cortes& cortes, const Veredicto& veredicto) {
  const std::string inicio = Texto(texto::kSinCorte) + " ";
  if (!veredicto.Cierto()) return inicio + Texto(texto::kCorteFalso);
  std::string faltas;
  for (const auto& [recorte, marca, sitio] : cortes.partes) {
    if (recorte.falta) faltas += (faltas.empty() ? inicio : "; ") + TextoFalta(recorte);
  }
  return faltas;
}

std::string TextoFalta(const Recorte& recorte) {
  if (!recorte.falta) return {};
  const bool cruza = *recorte.falta == FaltaRecorte::cruce;
  return TextoForma(recorte.forma) + ": " + Texto(cruza ? texto::kCruce : texto::kSinArea);
}

std::string TextoViejos(const Cortes& antes, const Cortes& cortes, const std::string& carpeta) {
  const std::vector<std::string> nuevos = Ficheros(cortes);
  std::string viejos;
  for (const std::string& fichero : Ficheros(antes)) {
    std::error_code error;
    if (std::ranges::find(nuevos, fichero) != nuevos.end()) continue;
    if (!std::filesystem::exists(std::filesystem::path(carpeta) / fichero, error)) continue;
    viejos += (viejos.empty() ? Texto(texto::kCorteViejo) + " " : ", ") + fichero;
  }
  return viejos;
}

void Deja(Cortes& cortes, const Veredicto& veredicto, Cuales cuales) {
  for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
    if (!SeCorta(cortes.partes[i].recorte, veredicto, cuales)) cortes.ficheros[i].clear();
  }
}

std::vector<std::string> Ficheros(const Cortes& cortes) {
  std::vector<std::string> ficheros = cortes.ficheros;
  std::erase(ficheros, "");
  ficheros.erase(std::unique(ficheros.begin(), ficheros.end()), ficheros.end());
  return ficheros;
}

Guardado GuardaCortes(const Cortes& cortes, const std::string& carpeta, std::string& ruta) {
  for (const std::string& fichero : Ficheros(cortes)) {
    std::vector<ParteCorte> partes;
    for (std::size_t i = 0; i < cortes.partes.size(); ++i) {
      if (cortes.ficheros[i] == fichero) partes.push_back(cortes.partes[i]);
    }
    ruta = std::filesystem::path(carpeta) / fichero;
    if (Guardado guardado = GuardaCorte(ruta, partes, estado.maquina, Milimetros()); !guardado) return guardado;
  }
  return {};
}

std::string ListaDobleces(const Cortes& cortes, HabitoCsv habito) {
  constexpr int kCoordenada = 6, kAngulo = 3;
  FilaCsv cabeza(habito);
  const std::string unidad = Milimetros() ? " mm" : " in";
  cabeza.Texto("file").Texto("shape").Texto("number").Texto("length" + unidad).Texto("angle").Texto("direction");
  for (const char* columna : {"x1", "y1", "x2", "y2"}) cabeza.Texto(columna + unidad);
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
