#include "shell/configuration.h"

#include <filesystem>

#include "display/file_questions.h"
#include "display/link_status.h"
#include "files/fault_text.h"
#include "platform/read_file.h"
#include "platform/save_file.h"
#include "shell/config_file.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr const char* kFileName = "/config.txt";
constexpr std::size_t kMostBytes = 1U << 20;

// The user's own file; before the first save that may still be the one installed beside the program.
FileContent configText(const Folders& folders) {
  FileContent text = readFile(folders.config + kFileName, kMostBytes);
  return text ? text : readFile(folders.program + kFileName, kMostBytes);
}

}  // namespace

void readConfiguration(Main& main) {
  const auto text = configText(main.around.folders);
  const ConfigFile file = text ? parseConfig(text.bytes) : defaultConfig();
  main.frame.COMlbl.setCaption(file.port);
  main.config.bannerDisplay = file.bannerDisplay;
  main.config.checkComSettings = file.checkComSettings;
  main.config.language = file.language;
}

void writeConfiguration(Main& main) {
  const ConfigFile file{main.frame.COMlbl.caption(), main.config.bannerDisplay, main.config.checkComSettings,
                        main.config.language};
  std::error_code ignored;  // the save tells when the folder can't be made
  std::filesystem::create_directories(main.around.folders.config, ignored);
  const SaveResult saved = saveFile(main.around.folders.config + kFileName, formatConfig(file));
  if (!saved) saveErrorSub(main, saveFaultText(saved, main.dict));
}

void saveComNumber(Main& main) {
  main.frame.COMlbl.setCaption(shortestText(main.com.comNumEdit.value()));
  writeConfiguration(main);
  showLinkState(main);
}

}  // namespace zephon
