#include "windows/ficheros_pieza.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <filesystem>
#include <utility>

#include "jobs/escritura.h"
#include "jobs/llenado.h"
#include "jobs/memoria.h"
#include "jobs/piezas.h"
#include "piece/numeros_texto.h"
#include "state/estado.h"
#include "state/textos.h"
#include "windows/fr_elige_pieza.h"

namespace duktores {

namespace {

QString Q(const std::string& texto) { return QString::fromStdString(texto); }

void Avisa(int numero, const std::string& detalle) {
  MuestraMensaje(Texto(numero) + " " + detalle, EstiloMensaje::exclamacion, "");
  CursorEspera(false);
}

void AvisaLectura(const std::string& ruta, const LecturaPiezas& lectura) {
  const bool propio = lectura.motivo == texto::kSinPiezas || lectura.motivo == texto::kDemasiadoGrande;
  const std::string porque = (propio ? "" : Texto(lectura.motivo) + " ") + lectura.detalle;
  Avisa(propio ? lectura.motivo : texto::kNoSeLee, ruta + (porque.empty() ? "" : " (" + porque + ")"));
}

std::string ValorDe(const Trabajo& trabajo, const std::string& clave) {
  for (const auto& [suya, texto] : trabajo.valores) {
    if (suya == clave) return clave + " = " + texto;
  }
  return clave;
}

std::string Fuste(const std::string& ruta) { return std::filesystem::path(ruta).stem().string(); }

/// A name that no job has yet.
std::string NombreNuevo(const std::vector<Trabajo>& trabajos, const std::string& base) {
  for (std::size_t n = trabajos.size() + 1;; ++n) {
    const std::string nombre = base + "-" + std::to_string(n), igual = SinCaja(nombre);
    if (std::ranges::none_of(trabajos, [&](const Trabajo& t) { return SinCaja(t.nombre) == igual; })) return nombre;
  }
}

bool PideNombre(QWidget& sobre, std::string& nombre) {
  QInputDialog pregunta(&sobre);
  pregunta.setWindowTitle(Q(Texto(texto::kGuardaPieza)));
  pregunta.setLabelText(Q(Texto(texto::kNombrePieza)));
  pregunta.setTextValue(Q(nombre));
  pregunta.setOkButtonText(Q(Texto(texto::kAceptar)));
  pregunta.setCancelButtonText(Q(Texto(texto::kCancelar)));
  while (pregunta.exec() == QDialog::Accepted) {
    nombre = pregunta.textValue().trimmed().toStdString();
    if (EsNombre(nombre)) return true;
    Avisa(texto::kNombreMalo, nombre);
  }
  return false;
}

enum class Modo { anade, reemplaza, nada };

/// What to do with a file that is there; only a list can be added to.
Modo PideModo(QWidget& sobre, int texto, const std::string& ruta, bool lista) {
  QMessageBox caja(QMessageBox::Question, {}, Q(Texto(texto) + " " + ruta), {}, &sobre);
  caja.setTextFormat(Qt::PlainText);
  auto* anade = lista ? caja.addButton(Q(Texto(texto::kAnade)), QMessageBox::AcceptRole) : nullptr;
  auto* reemplaza = caja.addButton(Q(Texto(texto::kReemplaza)), QMessageBox::DestructiveRole);
  auto* cancela = caja.addButton(Q(Texto(texto::kCancelar)), QMessageBox::RejectRole);
  caja.setDefaultButton(lista ? anade : cancela);
  caja.exec();
  if (caja.clickedButton() == reemplaza) return Modo::reemplaza;
  return lista && caja.clickedButton() == anade ? Modo::anade : Modo::nada;
}

/// What the file is to hold; none if another one has to be chosen.
std::optional<std::vector<Trabajo>> ListaPara(QWidget& sobre, const std::string& ruta, Trabajo trabajo) {
  const std::string opcion = std::exchange(trabajo.nombre, Fuste(ruta));
  std::vector<Trabajo> sola{trabajo};
  if (!QFileInfo::exists(Q(ruta))) return sola;
  LecturaPiezas lectura = LeePiezas(ruta);
  const bool lista = lectura.motivo == 0;
  if (!lista && lectura.motivo != texto::kSinPiezas) return AvisaLectura(ruta, lectura), std::nullopt;
  const Modo modo = PideModo(sobre, lista ? texto::kYaHayPiezas : texto::kReemplazar, ruta, lista);
  if (modo != Modo::anade) return modo == Modo::reemplaza ? std::optional(sola) : std::nullopt;
  for (const Trabajo& otro : lectura.trabajos) {
    if (!otro.rechazo) continue;
    Avisa(texto::kPiezaIlegible, otro.nombre + " (" + otro.rechazo->texto + ")");
    return std::nullopt;
  }
  trabajo.nombre = opcion.empty() ? NombreNuevo(lectura.trabajos, trabajo.nombre) : opcion;
  if (!PideNombre(sobre, trabajo.nombre)) return std::nullopt;
  PonTrabajo(lectura.trabajos, std::move(trabajo));
  return lectura.trabajos;
}

}  // namespace

std::optional<PiezaAbierta> AbrePieza(QWidget& sobre, const std::string& ruta) {
  LecturaPiezas lectura = LeePiezas(ruta);
  if (lectura.motivo != 0) return AvisaLectura(ruta, lectura), std::nullopt;
  const bool sola = lectura.trabajos.size() == 1 && lectura.trabajos.front().cantidad == 1;
  const std::size_t n = sola ? 0 : EligePieza(sobre, lectura.trabajos);
  if (n >= lectura.trabajos.size()) return std::nullopt;
  Trabajo& trabajo = lectura.trabajos[n];
  if (trabajo.rechazo) return Avisa(texto::kPiezaIlegible, ruta + " (" + trabajo.rechazo->texto + ")"), std::nullopt;
  const FilaPieza* fila = FilaDeClave(trabajo.pieza);
  if (!fila) return Avisa(texto::kPiezaDesconocida, trabajo.pieza), std::nullopt;
  PiezaAbierta abierta{*fila, Dialogo(fila->dialogo), std::move(trabajo)};
  if (const auto rechazo = LlenaDialogo(abierta.dialogo, abierta.trabajo)) {
    Avisa(texto::kValorNoSirve, ValorDe(abierta.trabajo, rechazo->clave));
    return std::nullopt;
  }
  PonReciente(ruta);
  return abierta;
}

bool GuardaPieza(QWidget& sobre, Trabajo trabajo) {
  // What was typed with the caret here and there may be nothing that could be typed again.
  Dialogo prueba(FilaDeClave(trabajo.pieza)->dialogo);
  if (const auto rechazo = LlenaDialogo(prueba, trabajo)) {
    return Avisa(texto::kValorNoSirve, ValorDe(trabajo, rechazo->clave)), false;
  }
  QFileDialog dialogo(&sobre, Q(Texto(texto::kGuardaPieza)), Q(CarpetaPiezas()), ".json (*.json)");
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);
  while (dialogo.exec() == QDialog::Accepted) {
    const QString elegido = dialogo.selectedFiles().value(0);
    const std::string ruta =
        (elegido.endsWith(".json", Qt::CaseInsensitive) ? elegido : elegido + ".json").toStdString();
    if (!EsNombre(Fuste(ruta))) {
      Avisa(texto::kNombreMalo, Fuste(ruta));
      continue;
    }
    const auto lista = ListaPara(sobre, ruta, trabajo);
    if (!lista) continue;
    const Guardado guardado = EscribeFichero(ruta, EscribeLista(*lista));
    const std::string restos = guardado ? TextoRestos(guardado) : TextoNoGuardado(ruta, guardado);
    if (!restos.empty()) {
      MuestraMensaje(restos, EstiloMensaje::exclamacion, "");
      CursorEspera(false);
    }
    if (!guardado) continue;
    PonReciente(ruta);
    return true;
  }
  return false;
}

std::string CarpetaPiezas() {
  for (const std::string& reciente : Recientes()) {
    const std::string carpeta = std::filesystem::path(reciente).parent_path().string();
    if (QFileInfo(Q(carpeta)).isDir()) return carpeta;
  }
  return estado.sRutaDuct;
}

}  // namespace duktores
