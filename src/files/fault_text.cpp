#include "files/fault_text.h"

#include "form/words.h"
#include "platform/error_text.h"

namespace zephon {
namespace {

Word wordOf(SaveStep step) {
  switch (step) {
    case SaveStep::None:
    case SaveStep::Look:
      return words::kSaveLook;
    case SaveStep::Create:
      return words::kSaveCreate;
    case SaveStep::Mode:
      return words::kSaveMode;
    case SaveStep::Write:
      return words::kSaveWrite;
    case SaveStep::Sync:
    case SaveStep::Close:
      return words::kSaveSync;
    case SaveStep::Folder:
      return words::kSaveFolder;
    case SaveStep::Rename:
      break;
  }
  return words::kSaveRename;
}

}  // namespace

std::string faultText(const FileFault& fault, std::span<const std::string> dict) {
  const std::string expected = filledText(wordText(dict, fault.expected), {fault.filling});
  if (fault.line)
    return filledText(wordText(dict, words::kFaultLine), {std::to_string(*fault.line), expected});
  return filledText(wordText(dict, words::kFaultByte), {std::to_string(fault.offset.value_or(0)), expected});
}

std::string readFaultText(const FileContent& content, std::span<const std::string> dict) {
  const std::string most = std::to_string(content.mostBytes);
  switch (content.fault) {
    case ReadFault::None:
      break;
    case ReadFault::System:
      return systemErrorText(content.error);
    case ReadFault::NoPlainFile:
      return wordText(dict, words::kPlainFile);
    case ReadFault::TooLarge:
      return filledText(wordText(dict, words::kTooLarge), {most});
  }
  return {};
}

std::string saveFaultText(const SaveResult& result, std::span<const std::string> dict) {
  if (result) return {};
  return filledText(wordText(dict, wordOf(result.step)), {systemErrorText(result.error)});
}

}  // namespace zephon
