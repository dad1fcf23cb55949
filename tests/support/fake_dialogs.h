#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screen/dialogs.h"

namespace zephon::testing_support {

// Dialogs that are answered beforehand and remember what was shown.
class FakeDialogs : public Dialogs {
 public:
  struct Shown {
    std::string kind;    // the name of the call
    std::string text;    // the message or question; of the file dialogs the suggested name
    std::string detail;  // advice, subject, title, or the folder where a file dialog starts
  };

  // The answers; each stays until it is changed.
  bool yes = true;
  std::optional<std::string> promptAnswer;
  std::optional<std::string> openAnswer;
  std::optional<std::string> saveAnswer;
  // Runs while a dialog stands on the screen: what happens behind it.
  std::function<void()> meanwhile;
  bool hasViewer = true;

  const std::vector<Shown>& shown() const { return shown_; }
  std::vector<std::string> texts() const {
    std::vector<std::string> all;
    for (const Shown& one : shown_) all.push_back(one.text);
    return all;
  }
  void forget() { shown_.clear(); }

  void message(const std::string& text, const std::string& advice) override {
    show("message", text, advice, true);
  }
  bool yesNo(const std::string& question, const std::string& subject = {}) override {
    return show("yesNo", question, subject, yes);
  }
  bool okCancel(const std::string& question, const std::string& title) override {
    return show("okCancel", question, title, yes);
  }
  std::optional<std::string> prompt(const std::string& title, const std::string& text,
                                    const std::string& /*answer*/) override {
    return show("prompt", text, title, promptAnswer);
  }
  std::optional<std::string> openFile(const FileQuestion& question) override {
    return show("openFile", question.name, question.folder, openAnswer);
  }
  std::optional<std::string> saveFile(const FileQuestion& question) override {
    return show("saveFile", question.name, question.folder, saveAnswer);
  }
  bool openInViewer(const std::string& path) override { return show("openInViewer", path, {}, hasViewer); }

 private:
  // The answer is the one that stands after `meanwhile`.
  template <class Answer>
  Answer show(const char* kind, const std::string& text, const std::string& detail, const Answer& answer) {
    shown_.push_back({kind, text, detail});
    if (meanwhile) meanwhile();
    return answer;
  }

  std::vector<Shown> shown_;
};

}  // namespace zephon::testing_support
