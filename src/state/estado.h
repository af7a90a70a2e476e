#pragma once
// The program state: everything that one run reads and writes by name. One instance per thread, so that several
// pieces can be worked at once; a fresh EstadoPrograma is the state before start-up. Lengths are in the configured
// unit, angles in degrees.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "geometry/puntos.h"
#include "piece/maquina.h"
#include "piece/pieza.h"
#include "platform/plataforma.h"

namespace duktores {

class cDrawing;
class cDXF;

struct EstadoPrograma {
  // Places and host, set at start-up. Paths of folders end in a separator.
  std::string sRutaPrograma;     ///< folder of the executable: Images, Template and the scratch file lie here
  std::string sRutaBase;         ///< installation root
  std::string sRutaIni;          ///< configuration file
  std::string sRutaPropia;       ///< the user's own file; empty: nothing is kept between two runs
  std::string sCarpetaGuardada;  ///< folder of the last save of this program run
  Ventana hVentanaHost = 0;      ///< foreground window at start
  bool bComaDecimal = false;     ///< the system's decimal separator is a comma

  // Configuration.
  double dIdioma = 0;             ///< base of the text ids: 0, 10000 .. 60000
  std::int16_t iUnidad = 0;       ///< 1 millimetres; any other: inches
  std::string sRutaDuct;          ///< starting folder of the save dialog
  double dEspesor = 0;            ///< sheet thickness
  double dTamanoTexto = 0;        ///< height of the annotation text
  std::int16_t iFibra = 0;        ///< surface that the entered dimensions refer to: 1 inner, 2 medium, 3 outer
  std::int16_t iColorDoblez = 0;  ///< colour index of the bend lines
  std::string sDimensiones;       ///< number as text; 1 switches the dimensions of a pattern on
  std::string sDensidad;          ///< number as text; density for the weight figures
  std::int16_t iDivisiones = 0;   ///< divisions: the configured default, then those of the last accepted dialog
  std::int16_t iBox = 0;          ///< any value but 0 switches the title block on
  std::int16_t iExacto = 0;       ///< any value but 0: patterns of exact lengths instead of the usual rules
  Maquina maquina;                ///< what cut files have to be like
  double dPasoTablaX = 60.0, dPasoTablaY = 30.0;  ///< spacing of the drawn dimensions, in drawing units

  /// The piece that a dialog has accepted last; all that follows names its values one by one.
  std::optional<Pieza> pieza;

  // Piece, set by the catalogue, the dialogs and the run driver.
  std::string sTipoPieza;  ///< piece type key
  double dAltura = 0, dAx = 0, dAy = 0, dAlfa = 0;
  std::int16_t iPosIni = 0;      ///< start position, 1 to 4
  std::int16_t inumDoblado = 0;  ///< divisions of the current run
  bool bDosPiezas = false;
  // Sides of the rectangle and size of the mouth after the fibre correction, by piece: circle on a rectangular base,
  // rectangle on a circular base, ellipse on a rectangular base (full axes).
  double dL1Base = 0, dL2Base = 0, dRadioAlto = 0;
  double dL1BaseRC = 0, dL2BaseRC = 0, dRadioRC = 0;
  double dL1Elip = 0, dL2Elip = 0, dEjeMayorElip = 0, dEjeMenorElip = 0;
  // Special pieces: radii of the corners of the upper (1) and lower mouth (2), sides, radius of a round mouth; and the
  // radii before an unfolding adjusts them.
  double dBeta = 0;
  double dR11 = 0, dR12 = 0, dR13 = 0, dR14 = 0, dR21 = 0, dR22 = 0, dR23 = 0, dR24 = 0;
  double dLX1 = 0, dLY1 = 0, dLX2 = 0, dLY2 = 0;
  double dRadioEsp = 0, dRadioEsp2 = 0;
  double dR11Ini = 0, dR12Ini = 0, dR13Ini = 0, dR14Ini = 0, dR21Ini = 0, dR22Ini = 0, dR23Ini = 0, dR24Ini = 0;
  double dRadioEspIni = 0;
  double dAyElip = 0;
  std::int16_t iPosIniElip = 0;
  std::int16_t MultinumDoblado = 0;  ///< 20 for the elliptical piece, 36 for the special ones

  // The current run.
  std::shared_ptr<cDrawing> oDrawing;
  std::shared_ptr<cDXF> oDXF;
  std::vector<Punto2> PoliContorno;  ///< the outline being built
  std::int32_t iHandleDxf = 0;       ///< DXF handle of the next entity, 500 at the start of a run; none above 32767
  double ExtMinX = 0, ExtMinY = 0, ExtMinZ = 0, ExtMaxX = 0, ExtMaxY = 0, ExtMaxZ = 0;  ///< extent of the last save

  Plataforma* plataforma = nullptr;  ///< not owned; null is a world in which nothing happens
};

extern thread_local EstadoPrograma estado;

}  // namespace duktores
