#include "windows/iconos.h"

#include <QAbstractButton>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <array>

namespace duktores {

namespace {

// Lines and filled areas as SVG paths on a grid of 24.
struct Dibujo {
  std::string_view nombre, lineas, relleno;
};

constexpr std::string_view kCubo = "M3 9H15V21H3ZM3 9L9 3H21L15 9M21 3V15L15 21";
constexpr std::string_view kPlanta = "M7 7H17V17H7ZM7 7L17 17M17 7L7 17";
constexpr std::string_view kVuelve = "M20 19V13A4 4 0 0 0 16 9H5M10 4L5 9L10 14";
constexpr std::string_view kPuerta = "M13 4H5V20H13M10 12H21M17 8L21 12L17 16";

// clang-format off
constexpr std::array kDibujos{
    //      button          lines                                                filled
    Dibujo{"cmdTop",        kCubo,                                               "M3 9L9 3H21L15 9Z"},
    Dibujo{"cmdBottom",     kCubo,                                               "M3 21L9 15H21L15 21Z"},
    Dibujo{"CmdLeft",       kCubo,                                               "M3 9L9 3V15L3 21Z"},
    Dibujo{"CmdRight",      kCubo,                                               "M15 9L21 3V15L15 21Z"},
    Dibujo{"cmdfront",      kCubo,                                               "M3 9H15V21H3Z"},
    Dibujo{"cmdRear",       kCubo,                                               "M9 3H21V15H9Z"},
    Dibujo{"CmdIsofront",   kPlanta,                                             "M12 18L16 23H8Z"},
    Dibujo{"cmdisoright",   kPlanta,                                             "M18 12L23 8V16Z"},
    Dibujo{"CmdIsoclear",   kPlanta,                                             "M12 6L8 1H16Z"},
    Dibujo{"cmdisoleft",    kPlanta,                                             "M6 12L1 16V8Z"},
    Dibujo{"cmdCorner",     "M12 2L21 7V17L12 22L3 17V7ZM3 7L12 12L21 7M12 12V22",  "M3 7L12 12V22L3 17Z"},
    Dibujo{"cmdAlambre",    "M8 4H16L21 20H3ZM8 4L12 20L16 4M12 20L3 20",        ""},
    Dibujo{"CmdSolido",     "M4 8A8 8 0 0 1 19 7M20 3V8H15M20 16A8 8 0 0 1 5 17M4 21V16H9", ""},
    Dibujo{"cmdmove",       "M12 3V21M3 12H21M9 6L12 3L15 6M9 18L12 21L15 18M6 9L3 12L6 15M18 9L21 12L18 15", ""},
    Dibujo{"cmdorbit",      "M4 12A8 3.5 0 1 0 12 8.5H8M11 5.5L8 8.5L11 11.5M12 2V22", ""},
    Dibujo{"CmdZoom",       "M8 5A5.5 5.5 0 1 0 8 16A5.5 5.5 0 1 0 8 5M12 14.5L17 20M8 8V13M5.5 10.5H10.5"
                            "M20 15V3M17.5 5.5L20 3L22.5 5.5M17.5 12.5L20 15L22.5 12.5",                     ""},
    Dibujo{"CmdZoomAll",    "M3 8V3H8M16 3H21V8M21 16V21H16M8 21H3V16M8 8H16V16H8Z", ""},
    Dibujo{"CmdZoomwindow", "M2 6V3H5M9 3H12M16 3H19V6M2 10V12M2 16V19H5"
                            "M15 10A4.5 4.5 0 1 0 15 19A4.5 4.5 0 1 0 15 10M18.3 17.8L22.5 22",              ""},
    Dibujo{"CmdDesplegado", "M2 12L8 5L9.5 7.5Q12 10 14.5 7.5L16 5L22 12L17 19H7ZM9.5 7.5L7 19M14.5 7.5L17 19", ""},
    Dibujo{"CmdExacto",     "M12 3A9 9 0 1 0 12 21A9 9 0 1 0 12 3M12 1V7M12 17V23M1 12H7M17 12H23",         ""},
    Dibujo{"CmdSave",       "M4 4H17L20 7V20H4ZM8 4V9H15V4M7 20V13H17V20",       ""},
    Dibujo{"CmdExport",     "M12 3V14M8 10L12 14L16 10M4 13V20H20V13",           ""},
    Dibujo{"CmdCancelar",   kVuelve,                                             ""},
    Dibujo{"CmdExit",       kPuerta,                                             ""},
    Dibujo{"CmdSalir",      kPuerta,                                             ""},
    Dibujo{"CmdAceptar",    "M4 13L9 18L20 6",                                   ""},
    Dibujo{"CmdAjustes",    "M3 6H21M3 12H21M3 18H21",
           "M8 3.5A2.5 2.5 0 1 0 8 8.5A2.5 2.5 0 1 0 8 3.5ZM16 9.5A2.5 2.5 0 1 0 16 14.5A2.5 2.5 0 1 0 16 9.5Z"
           "M8 15.5A2.5 2.5 0 1 0 8 20.5A2.5 2.5 0 1 0 8 15.5Z"},
    Dibujo{"CmdUltimos",    "M4 12A8 8 0 1 0 7 5.5M3 4L7 5.5L6 10M12 7V12L16 14",  ""},
    Dibujo{"CmdCeros",      "M12 5A5 7 0 1 0 12 19A5 7 0 1 0 12 5",              ""},
    Dibujo{"CmdAbre",       "M3 19V5H9L11 8H19V11M3 19L7 11H22L18 19Z",          ""},
    Dibujo{"CmdGuardaPieza", "M6 3H14L18 7V21H6ZM14 3V7H18M12 10V17M9 14L12 17L15 14", ""},
    Dibujo{"CmdManual",     "M12 3A9 9 0 1 0 12 21A9 9 0 1 0 12 3M9 9.5A3 3 0 1 1 13 12.3Q12 12.8 12 14.2M12 16.9V17", ""},
    Dibujo{"CmdChapas",     "M3 4H21V20H3ZM6 7H11V13H6ZM14 7H18V10H14ZM14 13L18 13V17H9V16Z", ""},
    Dibujo{"CmdDistribuye", "M3 4H21V20H3ZM6 7H11V13H6ZM14 7H18V10H14ZM14 13L18 13V17H9V16Z", ""},
    Dibujo{"CmdPara",       "M6 6H18V18H6Z",                                     "M6 6H18V18H6Z"},
    Dibujo{"CmdContinuar",  "M4 12H20M14 6L20 12L14 18",                         ""},
};
// clang-format on

QByteArray Svg(const Dibujo& dibujo, const QColor& color) {
  const auto texto = [](std::string_view t) { return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size())); };
  return QString(
             "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path d='%1' fill='%3' fill-opacity='0.6'/>"
             "<path d='%2' fill='none' stroke='%3' stroke-width='1.6' stroke-linejoin='round' "
             "stroke-linecap='round'/></svg>")
      .arg(texto(dibujo.relleno), texto(dibujo.lineas), color.name())
      .toUtf8();
}

QIcon Icono(const Dibujo& dibujo, const QColor& color) {
  QSvgRenderer trazos(Svg(dibujo, color));
  QIcon icono;
  for (const int lado : {24, 36, 48, 72}) {
    QPixmap mapa(lado, lado);
    mapa.fill(Qt::transparent);
    QPainter pintor(&mapa);
    trazos.render(&pintor);
    icono.addPixmap(mapa);
  }
  return icono;
}

}  // namespace

void PonBoton(QAbstractButton& boton, std::string_view nombre, const QString& ayuda) {
  boton.setObjectName(QString::fromUtf8(nombre.data(), static_cast<qsizetype>(nombre.size())));
  boton.setToolTip(ayuda);
  boton.setAccessibleName(ayuda);
  const auto* dibujo = std::ranges::find(kDibujos, nombre, &Dibujo::nombre);
  if (dibujo == kDibujos.end()) return;
  boton.setIcon(Icono(*dibujo, boton.palette().color(QPalette::Active, QPalette::ButtonText)));
  boton.setIconSize({24, 24});
}

}  // namespace duktores
