#pragma once
// cDrawing: the drawing model of one run. It keeps no entities: each becomes DXF text as it is inserted, in the order
// of drawing, and widens the extent. An arc counts as its whole circle, a text as the square around its insertion point
// with half side (characters of Text) * Height, in z too.

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "dxf/cadena.h"
#include "dxf/entidades.h"
#include "geometry/puntos.h"

namespace duktores {

class cDrawing {
 public:
  // When the drawing serves as a block; no file holds them.
  std::string Name;
  double BaseX = 0, BaseY = 0, BaseZ = 0;  ///< base point

  // Each is false, and changes nothing, for a missing object only. An entity that finds no handle left throws
  // ErrorCorrida before anything has changed.
  bool InsertLine(cLine* oLine);
  bool InsertArc(cArc* oArc);
  bool InsertText(cText* oText);
  bool InsertCircle(cCircle* oCircle);
  bool InsertPoint(cPoint* oPoint);
  void InsertPolyLine(cPolyline* oPolyLine);

  /// From now on a line of one colour is taken once on the same place. Whether this one stands there already is what
  /// Repite says, and remembers it.
  void UnaVez() { trazadas_.emplace(); }
  bool Repite(const cLine& oLine);

  std::int32_t Count() const { return m_count; }
  void GetBorder(double& xMin, double& yMin, double& zMin, double& xMax, double& yMax, double& zMax) const;
  const std::string& GetEntities() const { return entidades_.CurString(); }

 private:
  bool Anade(std::string_view entidad);  // true for the first one of the drawing
  void Amplia(Punto3 p);
  void AmpliaAlrededor(Punto3 centro, double r);

  // Only a line or an outline that comes first sets both corners; any other first entity leaves the high one at 0.
  Punto3 minimo_, maximo_;
  std::int32_t m_count = 0;
  cAddString entidades_;
  using Trazo = std::array<double, 5>;  // ends in ascending order, colour
  std::optional<std::set<Trazo>> trazadas_;
};

}  // namespace duktores
