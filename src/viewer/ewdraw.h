#pragma once
// The drawing control EWdraw as a component without a window: a list of entities that anyone can read, the geometry
// services that the engines ask for, and a view that answers picks and repaints. The engines get it as `axew`.
//
// Coordinates are model coordinates in the configured unit, angles of the operations degrees. Entities are named by ids
// from 1 upwards that are never used twice, EwClear included. An id that names no entity, or one of the wrong kind,
// makes a changing operation do nothing and a reading one answer false or 0; nothing here crashes on it.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/puntos.h"

namespace duktores {

/// The numbers are those of EwEntityType; 7, the closed outline, is the one that callers know.
enum class TipoEntidad { punto = 1, linea, circulo, elipse, arco, texto, contorno, polilinea, region };

struct Entidad {
  std::int32_t id = 0;
  TipoEntidad tipo = TipoEntidad::punto;
  std::int32_t color = 7;      ///< colour index 0..255, or a value of EwRgb
  std::vector<Punto3> puntos;  ///< point: itself; line: both ends; circle, ellipse, arc: centre; text: where it starts;
                               ///< outline, polyline, region: the vertices, the first not repeated
  Punto3 u, v;  ///< curves: centre + u*cos t + v*sin t; texts: baseline and up, each one text height long
  double inicio = 0, fin = 0;  ///< curves: t runs from `inicio` to `fin`, radians, inicio <= fin
  std::string texto, fuente;   ///< texts: UTF-8, font name
};

/// A box around entities; Vacia() until something is in it.
struct Caja {
  Punto3 minimo{1, 1, 1}, maximo{-1, -1, -1};
  bool Vacia() const { return minimo.x > maximo.x; }
  void Incluye(Punto3 p);
};

/// The exact box of an entity; a text counts as its insertion point.
Caja CajaDe(const Entidad& entidad);

/// Thrown by EwPickPoint when nobody gives a point. It leaves the run and is caught by the run driver.
struct EleccionRechazada {};

/// Commands that hand the mouse to the control.
enum class MandoVista { pan, zoom, zoomAll, zoomWindow, orbit };

class EWdraw;

/// Who looks at a control: a window, or the batch program with its list of picks. All defaults do nothing; a view that
/// gives no point refuses the pick.
class VistaEWdraw {
 public:
  virtual ~VistaEWdraw() = default;
  virtual std::optional<Punto3> EligePunto(EWdraw&) { return std::nullopt; }
  virtual void Regenera(EWdraw&) {}
  virtual void Manda(EWdraw&, MandoVista) {}
};

class EWdraw {
 public:
  EWdraw() = default;
  EWdraw(const EWdraw&) = delete;
  EWdraw& operator=(const EWdraw&) = delete;

  // Adding; each gives the new id.
  std::int32_t EwAddPoint(Punto3 p);
  std::int32_t EwAddLine(Punto3 p, Punto3 q);
  std::int32_t EwAddCircle(Punto3 centro, double radio, Punto3 normal);
  /// The first semi-axis lies along X for the normal (0, 0, 1); for others along the DXF arbitrary axis.
  std::int32_t EwAddEllipse(Punto3 centro, double semiejeX, double semiejeY, Punto3 normal);
  /// From `angIni` to `angFin` degrees, counter-clockwise seen against the normal; whole turns are added to angFin
  /// until it is not below angIni.
  std::int32_t EwAddArc(Punto3 centro, double radio, double angIni, double angFin, Punto3 normal);
  std::int32_t EwAddText(std::string_view texto, std::string_view fuente, Punto3 p, double altura, double angulo);

  // Polylines: Begin empties the vertex list, AddVertex fills it, End makes the entity. With no vertex End gives 0.
  void EwBeginPolyline();
  void EwAddVertex(double x, double y, double z);
  std::int32_t EwEndPolyline(bool cerrada);
  void EwBeginPolyline3D();
  void EwAddVertex3D(double x, double y, double z);
  std::int32_t EwEndPolyline3D(bool cerrada);

  // Changing.
  void EwRotate(std::int32_t id, Punto3 enEje, Punto3 direccion, double grados);
  void EwMove(std::int32_t id, Punto3 desde, Punto3 hasta);
  std::int32_t EwCopy(std::int32_t id, Punto3 desde, Punto3 hasta);  ///< the new id; 0 for a wrong id
  void EwDelete(std::int32_t id);
  void EwSetColor(std::int32_t id, std::int32_t color);
  void EwClear();

  // Reading.
  bool EwGetPoint(std::int32_t id, double& x, double& y, double& z) const;
  std::int32_t EwEntityCount() const;
  std::int32_t EwEntityAt(std::int32_t indice) const;  ///< id by place from 0; 0 outside
  std::int32_t EwEntityType(std::int32_t id) const;    ///< TipoEntidad as a number; 0 for a wrong id
  bool EwExtent(std::int32_t id, double& xMin, double& yMin, double& zMin, double& xMax, double& yMax,
                double& zMax) const;
  /// A region of a closed outline (its vertices in a plane); 0 for anything else. `conserva` false deletes the outline.
  std::int32_t EwMakeRegion(std::int32_t id, bool conserva);
  double EwPerimeter(std::int32_t id) const;  ///< of an outline or region
  double EwArea(std::int32_t id) const;       ///< of an outline or region, never negative
  /// Meeting points of a line (a segment) with a circle, ellipse or arc in one plane, in either order of the ids; the
  /// number of points, by their place along the line. `alargada` true takes the line as endless.
  std::int32_t EwIntersect(std::int32_t id1, std::int32_t id2, bool alargada);
  bool EwIntersectPoint(std::int32_t indice, double& x, double& y, double& z) const;  ///< of the last EwIntersect

  // View.
  void EwInicia(bool inicia);  ///< true: no entities, seen from above
  void EwViewMode(std::int32_t modo);
  void EwViewDirection(double x, double y, double z);  ///< the place to look from; without a length nothing changes
  void EwRegen();
  /// While it is silent EwRegen does nothing: the view stays as it is.
  void Calla(bool callado) { callado_ = callado; }
  /// Blocks until the view has given a point; throws EleccionRechazada if it refuses or there is no view.
  void EwPickPoint(double& x, double& y, double& z);
  /// The outline that the next EwPickPoint places, relative to the point to be picked, and what it is called. Any pick
  /// takes both away.
  void EwGhost(std::vector<Punto2> contorno, std::string_view rotulo = {});
  void EwPan();
  void EwZoom();
  void EwZoomAll();
  void EwZoomWindow();
  void EwOrbit();

  // For those who look: the model as data.
  const std::vector<Entidad>& Entidades() const { return entidades_; }
  const std::vector<Punto2>& Fantasma() const { return fantasma_; }
  const std::string& RotuloFantasma() const { return rotuloFantasma_; }
  Punto3 DireccionVista() const { return direccionVista_; }
  /// Exchanges the entities and the view direction with another control's; who looks at either stays.
  void CambiaModelo(EWdraw& otro);
  void PonVista(VistaEWdraw* vista) { vista_ = vista; }  ///< not owned; null takes it away

 private:
  std::int32_t Anade(Entidad entidad);
  Entidad* Busca(std::int32_t id);
  const Entidad* Busca(std::int32_t id) const;
  const Entidad* BuscaCerrada(std::int32_t id) const;  // an outline or region, else null
  void Manda(MandoVista mando);

  std::vector<Entidad> entidades_;  // in ascending order of ids
  std::int32_t ultimoId_ = 0;
  std::vector<Punto3> vertices_, vertices3D_;
  std::vector<Punto3> cortes_;
  std::vector<Punto2> fantasma_;
  std::string rotuloFantasma_;
  Punto3 direccionVista_{0, 0, 1};
  bool callado_ = false;
  VistaEWdraw* vista_ = nullptr;
};

/// Colour index of the solids.
inline constexpr std::int32_t kColorSolido = 120;

/// A colour from red, green and blue, 0..256; 256 counts as full intensity. Never a small index.
std::int32_t EwRgb(int r, int g, int b);

struct Rgb {
  std::uint8_t r = 0, g = 0, b = 0;
  friend bool operator==(Rgb, Rgb) = default;
};
/// What an entity's colour looks like: the value of EwRgb, or the DXF colour index.
Rgb RgbDe(std::int32_t color);

}  // namespace duktores
