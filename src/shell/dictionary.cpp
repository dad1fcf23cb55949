#include "shell/dictionary.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "display/link_status.h"
#include "protocol/asking.h"
#include "protocol/options.h"
#include "shell/configuration.h"
#include "shell/dictionary_file.h"
#include "shell/dictionary_texts.h"

namespace zephon {
namespace {

constexpr std::size_t kFirstFinding = 215;

std::string pathOf(const Main& main) {
  return main.around.folders.program + "/" + main.config.language + ".dictionary";
}

std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  for (const auto& entry : std::filesystem::directory_iterator(folder, fault)) {
    if (!entry.is_directory(fault)) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// While the list is disabled its handler ignores the change.
void fillLanguageList(Main& main) {
  Combo& list = main.com.langCombo;
  list.setEnabled(false);
  list.setItems(languagesAmong(filesIn(main.around.folders.program)));
  const auto& items = list.items();
  const auto current = std::find(items.begin(), items.end(), main.config.language);
  list.setIndex(current == items.end() ? 0 : static_cast<int>(current - items.begin()));
  list.setEnabled(true);
}

// The link's line, once there is one. Why a link failed stays as it was told.
void showLinkInWords(Main& main) {
  const FrameElements& f = main.frame;
  const bool failed = main.link.openFailed || !f.adviceLbl.caption().empty();
  if (!failed && !f.linkLbl.caption().empty()) showLinkState(main);
}

// The texts of the findings, which the analyses complete with what they find.
void fillFindingTexts(Main& main) {
  for (std::size_t i = 0; i < kFindingSlots; ++i)
    main.findings.findingTexts[i] = main.dict[kFirstFinding + i];
}

}  // namespace

std::string loadDictionary(Main& main) {
  const std::string path = pathOf(main);
  std::ifstream file(path, std::ios::binary);
  if (!file) return path + " is missing or can't be read";
  DictionaryFile read = parseDictionary(std::string(std::istreambuf_iterator<char>(file), {}));
  if (!read.fault.empty()) return path + ": " + read.fault;
  main.dict = std::move(read.entries);
  fillLanguageList(main);
  showTexts(main);
  if (main.pages.setupOn) showOptionTexts(main);
  showLinkInWords(main);
  fillFindingTexts(main);
  return {};
}

void chooseLanguage(Main& main) {
  if (!main.com.langCombo.enabled()) return;
  const std::string before = main.config.language;
  main.config.language = main.com.langCombo.text();
  const std::string fault = loadDictionary(main);
  if (fault.empty()) return writeConfiguration(main);
  main.config.language = before;
  fillLanguageList(main);
  tell(main, "Unable to locate or read dictionary file.", fault);
}

}  // namespace zephon
