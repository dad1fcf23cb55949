#include "shell/unattended.h"

#include <filesystem>

#include "display/file_questions.h"
#include "files/csv_write.h"
#include "files/fault_text.h"
#include "logs/event_download.h"
#include "platform/paths.h"
#include "platform/read_file.h"
#include "platform/save_file.h"
#include "protocol/measurement.h"
#include "shell/connection.h"
#include "shell/export_command.h"
#include "shell/export_text.h"
#include "shell/page_layout.h"

namespace zephon {
namespace {

constexpr int kDone = 0;
constexpr int kUnusable = 2;
constexpr int kCantOpen = 3;
constexpr int kNoAnswer = 4;
constexpr int kCantWrite = 5;

constexpr int kTries = 4;
constexpr std::size_t kLargestExport = std::size_t{1} << 30;

bool readEvents(Main& main) {
  main.pages.dataPageActive = true;
  const bool read = getTSdata(main);
  main.pages.dataPageActive = false;
  return read;
}

// As the measurement page for this device; that also tells the pass what to read.
bool readMeasurements(Main& main) {
  main.pages.measuring = true;
  pageLayout(main);
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (getMeasurements(main)) return true;
  }
  return false;
}

bool readDevice(Main& main, const ExportCommand& command) {
  if (command.events && !readEvents(main)) return false;
  return readMeasurements(main);
}

bool failed(Main& main, const std::string& reason) {
  saveErrorSub(main, reason);
  return false;
}

// What stands in the file, ended by a line end. A device or a pipe has nothing to keep.
FileContent oldContent(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return {};
  FileContent old = readFile(path, kLargestExport);
  if (!old.bytes.empty() && !old.bytes.ends_with('\n')) old.bytes += kLineEnd;
  return old;
}

bool writeExport(Main& main, const ExportCommand& command) {
  const bool appends = command.append && fileExists(command.file);
  FileContent content;
  if (appends) content = oldContent(command.file);
  if (!content) return failed(main, readFaultText(content, main.dict));
  content.bytes += exportText(main, command, !appends);
  const SaveResult saved = saveFile(command.file, content.bytes);
  return saved || failed(main, saveFaultText(saved, main.dict));
}

}  // namespace

int runUnattended(Main& main, const std::string& commandLine) {
  const auto command = parseExport(commandLine);
  if (!command) {
    main.around.dialogs.message(std::string(kExportUsage));
    return kUnusable;
  }
  const bool connected = connectSub(main);
  if (!connected && main.link.openFailed) {
    disconnectSub(main);
    return kCantOpen;
  }
  if (!connected || !readDevice(main, *command)) {
    errorSub(main);
    return kNoAnswer;
  }
  const bool written = writeExport(main, *command);
  disconnectSub(main);
  return written ? kDone : kCantWrite;
}

}  // namespace zephon
