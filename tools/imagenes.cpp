// imagenes FOLDER: draws the pictures of the catalogue and of the dialogs into FOLDER.

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

#include "imagenes_lamina.h"

namespace {

template <class Lista>
bool GuardaTodas(const QDir& carpeta, const Lista& lista) {
  for (const auto& imagen : lista) {
    duktores::Papel papel;
    Dibuja(papel, imagen);
    const QString ruta = carpeta.filePath(QString::fromLatin1(imagen.fichero.data(), imagen.fichero.size()));
    if (papel.Guarda(ruta)) continue;
    std::fprintf(stderr, "imagenes: can't write %s\n", qPrintable(ruta));
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication aplicacion(argc, argv);
  if (argc != 2) {
    std::fputs("usage: imagenes FOLDER\n", stderr);
    return 2;
  }
  const QDir carpeta(QString::fromLocal8Bit(argv[1]));
  return GuardaTodas(carpeta, duktores::Laminas()) && GuardaTodas(carpeta, duktores::Portadas()) ? 0 : 1;
}
