#include <gtest/gtest.h>

#include <QApplication>

#include "window/scenario.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 2 && QByteArray(argv[1]) == zephon::testing_support::kScenario) {
    return zephon::testing_support::runScenario(argc, argv);
  }
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
