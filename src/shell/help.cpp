#include "shell/help.h"

#include "files/file_kind.h"
#include "form/shortcuts.h"
#include "protocol/asking.h"
#include "protocol/dict_text.h"
#include "reports/maker.h"

namespace zephon {
namespace {

constexpr std::size_t kHelpKeys[] = {1,  2,  3,  4,  5,  6,  7,  9,  10,  11,  12, 13,
                                     14, 15, 16, 17, 18, 19, 20, 21, 203, 213, 214};
constexpr std::size_t kSoftwareKey = 199;
constexpr std::size_t kFirmwareKey = 22;
constexpr std::size_t kChipKey = 23;

// What support asks a caller for, and its number.
std::string identityLines(const Main& main) {
  std::string lines = dictText(main, kSoftwareKey) + " " + std::string(kSoftwareVersion) + "\n";
  if (main.link.identified) {
    lines += dictText(main, kFirmwareKey) + " " + main.link.firmwareVersion + "\n";
    lines += dictText(main, kChipKey) + " " + main.link.chipID + "\n";
  }
  return lines + wordText(main.dict, words::kSupport) + " " + std::string(kMakerTelephone) + "\n";
}

std::string numberedLines(const Main& main) {
  std::string lines;
  int number = 0;
  for (const std::size_t key : kHelpKeys)
    lines += std::to_string(++number) + ". " + dictText(main, key) + "\n";
  return lines;
}

std::string nameOf(const Main& main, const char* key) {
  return main.around.keyName ? main.around.keyName(key) : key;
}

std::string keyLines(const Main& main) {
  std::string lines = wordText(main.dict, words::kKeys) + "\n";
  for (const Shortcut& one : kShortcuts)
    lines += nameOf(main, one.key) + "  " + wordText(main.dict, one.does) + "\n";
  return lines + wordText(main.dict, words::kGraph) + ": " + wordText(main.dict, words::kGraphKeys) + "\n";
}

}  // namespace

std::string helpText(const Main& main) {
  return identityLines(main) + "\n" + numberedLines(main) + "\n" + keyLines(main) + "\n" +
         std::string(kMakerCopyright);
}

void showHelp(Main& main) {
  tell(main, helpText(main));
  main.frame.helpBtn.setValue(false);
}

}  // namespace zephon
