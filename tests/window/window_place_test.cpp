#include "window/window_place.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace zephon {
namespace {

TEST(WindowPlace, IsFoundAgainByTheNextStart) {
  const TempFolder folder;
  const std::string state = folder / "state/zephon";  // not made yet
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  QWidget first;
  restorePlace(first, state);
  EXPECT_EQ(first.size(), QSize(1180, 680).boundedTo(screen));
  first.setGeometry(40, 30, 500, 400);
  keepPlace(first, state);

  QWidget second;
  restorePlace(second, state);
  EXPECT_EQ(second.geometry(), QRect(40, 30, 500, 400));
}

TEST(WindowPlace, AFileThatSaysNothingUsableIsAFirstStart) {
  const TempFolder folder;
  for (const std::string& bytes :
       std::vector<std::string>{"", "not a place", "AdnQywADAAA=", std::string(5000, 'A')}) {
    folder.put("window", bytes);
    QWidget window;
    restorePlace(window, folder / "");
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect(QPoint(0, 0), window.size()))) << bytes;
  }
}

}  // namespace
}  // namespace zephon
