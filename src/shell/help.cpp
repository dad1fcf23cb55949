#include "shell/help.h"

#include "protocol/asking.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

constexpr std::size_t kHelpKeys[] = {1,  2,  3,  4,  5,  6,  7,  9,  10,  11,  12, 13,
                                     14, 15, 16, 17, 18, 19, 20, 21, 203, 213, 214};

}  // namespace

void showHelp(Main& main) {
  std::string text = dictText(main, 199) + " 4.4\n";
  int number = 0;
  for (const std::size_t key : kHelpKeys)
    text += "\n" + std::to_string(++number) + ". " + dictText(main, key);
  tell(main, text);
  main.frame.helpBtn.setValue(false);
}

}  // namespace zephon
