#include "shell/configuration.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "display/link_status.h"
#include "platform/save_file.h"
#include "shell/config_file.h"
#include "shell/connection.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr const char* kFileName = "/config.txt";

std::optional<std::string> readWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

// The user's own file; before the first save that may still be the one installed beside the program.
std::optional<std::string> configText(const Folders& folders) {
  auto text = readWhole(folders.config + kFileName);
  return text ? text : readWhole(folders.program + kFileName);
}

}  // namespace

void readConfiguration(Main& main) {
  const auto text = configText(main.around.folders);
  const ConfigFile file = text ? parseConfig(*text) : defaultConfig();
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
  if (!saveFile(main.around.folders.config + kFileName, formatConfig(file))) saveErrorSub(main);
}

void saveComNumber(Main& main) {
  main.frame.COMlbl.setCaption(shortestText(main.com.comNumEdit.value()));
  writeConfiguration(main);
  showLinkState(main);
}

}  // namespace zephon
