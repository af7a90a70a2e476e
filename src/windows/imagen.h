#pragma once
// A picture of the installation, fitted into its widget without distortion.

#include <QPixmap>
#include <QWidget>
#include <string_view>

namespace duktores {

class Imagen : public QWidget {
 public:
  using QWidget::QWidget;
  /// A file below Images of the program's folder; an empty name, or a file that can't be loaded, empties the picture.
  void Carga(std::string_view fichero);
  bool Vacia() const { return mapa_.isNull(); }

 protected:
  void paintEvent(QPaintEvent* suceso) override;

 private:
  QPixmap mapa_;
};

}  // namespace duktores
