#include "dxf/dibujo.h"

#include <algorithm>
#include <utility>

#include "geometry/redondeo.h"
#include "state/caracteres.h"

namespace duktores {

bool cDrawing::Anade(std::string_view entidad) {
  entidades_.AddString(entidad);
  return ++m_count == 1;
}

void cDrawing::Amplia(Punto3 p) {
  minimo_ = {std::min(minimo_.x, p.x), std::min(minimo_.y, p.y), std::min(minimo_.z, p.z)};
  maximo_ = {std::max(maximo_.x, p.x), std::max(maximo_.y, p.y), std::max(maximo_.z, p.z)};
}

void cDrawing::AmpliaAlrededor(Punto3 centro, double r) {
  const Punto3 radio{r, r, r};
  Amplia(centro - radio);
  Amplia(centro + radio);
}

bool cDrawing::Repite(const cLine& oLine) {
  constexpr int kDecimales = 6;
  if (!trazadas_) return false;
  std::array uno{Redondea(oLine.x1, kDecimales), Redondea(oLine.y1, kDecimales)};
  std::array otro{Redondea(oLine.x2, kDecimales), Redondea(oLine.y2, kDecimales)};
  if (otro < uno) std::swap(uno, otro);
  return !trazadas_->insert({uno[0], uno[1], otro[0], otro[1], static_cast<double>(oLine.ColorIndex)}).second;
}

bool cDrawing::InsertLine(cLine* oLine) {
  if (!oLine) return false;
  const Punto3 p{oLine->x1, oLine->y1, oLine->z1}, q{oLine->x2, oLine->y2, oLine->z2};
  if (Anade(oLine->DxfEntity())) {
    minimo_ = p;
    maximo_ = q;
  }
  Amplia(p);
  Amplia(q);
  return true;
}

bool cDrawing::InsertArc(cArc* oArc) {
  if (!oArc) return false;
  const Punto3 centro{oArc->x, oArc->y, oArc->z};
  if (Anade(oArc->DxfEntity())) minimo_ = centro;
  AmpliaAlrededor(centro, oArc->R);
  return true;
}

bool cDrawing::InsertText(cText* oText) {
  if (!oText) return false;
  const Punto3 p{oText->x, oText->y, oText->z};
  if (Anade(oText->DxfEntity())) minimo_ = p;
  AmpliaAlrededor(p, LongitudUtf16(oText->Text) * oText->Height);
  return true;
}

bool cDrawing::InsertCircle(cCircle* oCircle) {
  if (!oCircle) return false;
  const Punto3 centro{oCircle->x, oCircle->y, oCircle->z};
  if (Anade(oCircle->DxfEntity())) minimo_ = centro;
  AmpliaAlrededor(centro, oCircle->R);
  return true;
}

bool cDrawing::InsertPoint(cPoint* oPoint) {
  if (!oPoint) return false;
  const Punto3 p{oPoint->x, oPoint->y, oPoint->z};
  if (Anade(oPoint->DxfEntity())) minimo_ = p;
  Amplia(p);
  return true;
}

void cDrawing::InsertPolyLine(cPolyline* oPolyLine) {
  if (!oPolyLine) return;
  const Punto3 bajo{oPolyLine->xMin, oPolyLine->yMin, oPolyLine->zMin};
  const Punto3 alto{oPolyLine->xMax, oPolyLine->yMax, oPolyLine->zMax};
  if (Anade(oPolyLine->DxfEntity())) {
    minimo_ = bajo;
    maximo_ = alto;
  }
  Amplia(bajo);
  Amplia(alto);
}

void cDrawing::GetBorder(double& xMin, double& yMin, double& zMin, double& xMax, double& yMax, double& zMax) const {
  xMin = minimo_.x;
  yMin = minimo_.y;
  zMin = minimo_.z;
  xMax = maximo_.x;
  yMax = maximo_.y;
  zMax = maximo_.z;
}

}  // namespace duktores
