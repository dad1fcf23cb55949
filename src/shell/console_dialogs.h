#pragma once

#include "screen/dialogs.h"

namespace zephon {

// The boxes of a program that nobody sits before: messages go to standard error, and every question is
// answered so that nothing is lost: no, cancelled.
class ConsoleDialogs : public Dialogs {
 public:
  void message(const std::string& text, const std::string& advice = {}) override;
  bool yesNo(const std::string& question, const std::string& subject = {}) override;
  bool okCancel(const std::string& question, const std::string& title) override;
  std::optional<std::string> prompt(const std::string& title, const std::string& text,
                                    const std::string& answer) override;
  std::optional<std::string> openFile(const FileQuestion& question) override;
  std::optional<std::string> saveFile(const FileQuestion& question) override;
};

}  // namespace zephon
