// An own main: texts need a QGuiApplication, and tests must not need a display.

#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QGuiApplication aplicacion(argc, argv);
  return RUN_ALL_TESTS();
}
