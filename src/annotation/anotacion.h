#pragma once
// The procedures with which a flat pattern is drawn. Each draws twice: on the control `axew` for the screen
// and into `estado.oDrawing` for the file. Coordinates are in the plane of the pattern, in the configured unit, z is 0;
// angles are degrees; `color` is the DXF colour index. A coordinate that is no finite number ends the run with
// ErrorCorrida before that line, arc, text or outline is drawn.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/puntos.h"
#include "state/estado.h"
#include "viewer/ewdraw.h"

namespace duktores {

inline constexpr std::int16_t kColorNumero = 1, kColorCota = 4, kColorLado = 6;
/// Lengths and differences up to this are noise: the points coincide, the heights are level.
inline constexpr double kNivel = 1e-6;

/// Nothing is drawn that the drawing doesn't take twice.
void DibujaLinea(EWdraw& axew, double x1, double y1, double x2, double y2, std::int16_t color);
inline void DibujaLinea(EWdraw& axew, Punto2 p, Punto2 q, std::int16_t color) {
  DibujaLinea(axew, p.x, p.y, q.x, q.y, color);
}
void DibujaArco(EWdraw& axew, double cx, double cy, double radio, double angIni, double angFin, std::int16_t color);
/// The arc, if it has a radius, and its span in degrees as text below the centre. 360 is added to `angFin` when it is
/// below angIni.
void DibujaArcoCota(EWdraw& axew, double cx, double cy, double radio, double angIni, double& angFin, double altura,
                    std::int16_t color);
/// `texto` starts at (x, y). In all languages but Chinese a blank is put behind each "^" in it, in the caller's text
/// too.
void DibujaTexto(EWdraw& axew, double x, double y, std::string& texto, double altura, std::int16_t color,
                 double angulo);
/// A dimension. "M": between two points, its line passing near (xp, yp), with extension lines and arrow heads. "S",
/// "E": the line and its length at the first or second point. Any other type draws nothing.
void DibujaCota(EWdraw& axew, double x1, double y1, double x2, double y2, double xp, double yp, double altura,
                std::int16_t color, std::string_view tipo);
/// The dimensions that surround a pattern, all of one colour: an "M" by its three
/// points, and an extension line. Nothing is drawn for what has no length.
void Acota(EWdraw& axew, double altura, Punto2 p, Punto2 q, Punto2 paso);
void Extiende(EWdraw& axew, Punto2 p, Punto2 q);
/// A closed outline, colour 7 on the control; in the file its first vertex stands again at the end. Nothing is drawn
/// without a vertex.
void DibujaPolilinea(EWdraw& axew, const std::vector<Punto2>& vertices);

/// The same, by way of `estado.PoliContorno`, which the prompt before it empties.
void EmpiezaContorno();
void DibujaContorno(EWdraw& axew, std::vector<Punto2> contorno);

/// For its life what is drawn goes to the control alone; drawing and outline of `estado` stay as they are.
class SoloControl {
 public:
  SoloControl();
  ~SoloControl();
  SoloControl(const SoloControl&) = delete;
  SoloControl& operator=(const SoloControl&) = delete;

 private:
  std::shared_ptr<cDrawing> oDrawing_;
  std::vector<Punto2> PoliContorno_;
};

/// Measures of the `iPieza`-th closed outline on the control; the outputs stay as they are if there are fewer.
void MidePieza(EWdraw& axew, std::int16_t iPieza, double& dAreaPieza, double& dAreaRect, double& dPerimetro);

/// Cut, not rounded, to 2 (3) decimals, after a rounding to 3: 2.4567 gives 2.45, but 2.4999 gives 2.5.
double TruncaDosDecimales(double v);
double TruncaTresDecimales(double v);

/// Characters of a text as widths: in Chinese each counts 1.4.
std::int16_t LongitudTexto(std::string_view texto);

/// Cuts `s` at each delimiter; `partes` is filled from index 1, index 0 stays empty. The number of pieces.
int DivideCadena(std::string_view s, std::vector<std::string>& partes, char delimitador);

}  // namespace duktores
