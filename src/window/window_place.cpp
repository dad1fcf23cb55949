#include "window/window_place.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <filesystem>

#include "platform/read_file.h"
#include "platform/save_file.h"

namespace zephon {
namespace {

constexpr QSize kUsual(1180, 680);
constexpr std::size_t kMostBytes = 4096;

std::string fileIn(const std::string& folder) {
  return folder + "/window";
}

// A window's size never exceeds what the screen has to give.
QSize onScreen(const QWidget& window, QSize size) {
  const QScreen* screen = window.screen();
  return screen ? size.boundedTo(screen->availableSize()) : size;
}

}  // namespace

void restorePlace(QWidget& window, const std::string& folder) {
  window.resize(onScreen(window, kUsual));
  if (folder.empty()) return;
  if (const FileContent kept = readFile(fileIn(folder), kMostBytes))
    window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(kept.bytes)));
}

void keepPlace(const QWidget& window, const std::string& folder) {
  if (folder.empty()) return;
  std::error_code fault;
  std::filesystem::create_directories(folder, fault);
  saveFile(fileIn(folder), (window.saveGeometry().toBase64() + '\n').toStdString());
}

}  // namespace zephon
