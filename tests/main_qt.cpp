// An own main: texts and windows need an application; tests must not need a display, and leave no trace in the user's
// folder.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!qEnvironmentVariableIsSet("LC_ALL")) qputenv("LC_ALL", "C.UTF-8");
  const QTemporaryDir casa;
  qputenv("HOME", casa.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", casa.path().toUtf8());
  testing::InitGoogleTest(&argc, argv);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication aplicacion(argc, argv);
  return RUN_ALL_TESTS();
}
