#include "display/file_questions.h"

#include "platform/paths.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

constexpr std::size_t kKeySaveFailed = 47;
constexpr std::size_t kKeyReplace = 48;
constexpr std::size_t kKeyExists = 49;
constexpr std::size_t kKeySave = 189;

}  // namespace

bool mayReplace(Main& main, const std::string& path) {
  if (!fileExists(path)) return true;
  return main.around.dialogs.okCancel(dictText(main, kKeyExists) + ' ' + dictText(main, kKeyReplace),
                                      dictText(main, kKeySave));
}

void saveErrorSub(Main& main, const std::string& reason) {
  main.around.dialogs.message(dictText(main, kKeySaveFailed), reason);
}

}  // namespace zephon
