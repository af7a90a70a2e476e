#pragma once
// The entities of the drawing model. Coordinates and sizes are in drawing units, angles in degrees, texts UTF-8.
// DxfEntity gives the entity's whole DXF text, each line ended by CR LF. LINE, ARC, TEXT and LWPOLYLINE take the handle
// `estado.iHandleDxf` in plain decimal digits and raise it by one; when no handle is left (beyond 32767) they throw
// ErrorCorrida. An empty layer or line type name is replaced in the object before it is written. Never written: the
// line type of a line, an arc or an outline, the colour of an outline, the font of a text.

#include <cstdint>
#include <string>
#include <string_view>

#include "dxf/cadena.h"

namespace duktores {

struct cLine {
  double x1 = 0, y1 = 0, z1 = 0, x2 = 0, y2 = 0, z2 = 0;
  std::string LayerName = "0", LineTypeName = "CONTINUOUS";
  std::int16_t ColorIndex = 255;
  std::string DxfEntity();
};

struct cArc {
  double x = 0, y = 0, z = 0, R = 0, StartAngle = 0, EndAngle = 0;
  std::string LayerName = "0", LineTypeName = "CONTINUOUS";
  std::int16_t ColorIndex = 255;
  std::string DxfEntity();
};

struct cCircle {
  double x = 0, y = 0, z = 0, R = 0;
  std::string LayerName = "0", LineTypeName = "CONTINUOUS";
  std::int16_t ColorIndex = 255;
  std::string DxfEntity();
};

struct cPoint {
  double x = 0, y = 0, z = 0;
  std::string LayerName = "0", LineTypeName = "CONTINUOUS";
  std::int16_t ColorIndex = 255;
  std::string DxfEntity();
};

struct cText {
  std::string Text;
  double x = 0, y = 0, z = 0, Height = 0.2, Angle = 0;
  std::string LayerName = "0";
  std::int16_t FontIndex = 0, ColorIndex = 255;
  std::string FontName = "Arial Unicode MS";
  std::string DxfEntity();
};

/// Closed by repeating its first vertex; without a vertex its text is empty and it takes no handle.
struct cPolyline {
  std::string LayerName = "DUCT", LineTypeName = "CONTINUOUS";
  std::int16_t ColorIndex = 255;
  std::int32_t iVertices = 0;
  double xMin = 0, yMin = 0, zMin = 0, xMax = 0, yMax = 0, zMax = 0;  ///< of the vertices
  /// z goes into the extent only.
  void InsertVertex(double x, double y, double z);
  std::string DxfEntity();

 private:
  std::string vertices_;
};

}  // namespace duktores
