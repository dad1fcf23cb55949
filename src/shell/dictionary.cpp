#include "shell/dictionary.h"

#include <algorithm>

#include "display/link_status.h"
#include "files/dictionary_file.h"
#include "protocol/asking.h"
#include "protocol/options.h"
#include "shell/configuration.h"
#include "shell/dictionary_texts.h"

namespace zephon {
namespace {

constexpr std::size_t kFirstFinding = 215;

// While the list is disabled its handler ignores the change.
void fillLanguageList(Main& main) {
  Combo& list = main.com.langCombo;
  list.setEnabled(false);
  list.setItems(languagesIn(main.around.folders.program));
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
  DictionaryFile read = readDictionary(main.around.folders.program, main.config.language);
  if (!read) return dictionaryFaultText(read, main.dict);
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
  tell(main, kLanguageStays, fault);
}

}  // namespace zephon
