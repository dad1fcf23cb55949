#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zephon {

struct FileFilter {
  std::string name;       // "Comma-Separated (*.csv)"
  std::string extension;  // "csv"
};

struct FileQuestion {
  std::string folder;  // where the dialog starts
  std::string name;    // suggested, empty for none
  std::vector<FileFilter> filters;
};

// The boxes that the tool puts before its user. The window draws them, tests answer them beforehand, and the
// program without a window writes messages to standard error and takes every question's careful answer.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  // `advice` is one line beside the message that says what to do; empty for none.
  virtual void message(const std::string& text, const std::string& advice = {}) = 0;
  // A message under a title of its own.
  virtual void titledMessage(const std::string& title, const std::string& text) { message(text, title); }
  // `subject` is one line beside the question that says what it is about; empty for none.
  virtual bool yesNo(const std::string& question, const std::string& subject = {}) = 0;
  // OK and Cancel.
  virtual bool okCancel(const std::string& question, const std::string& title) = 0;
  // Nothing when cancelled.
  virtual std::optional<std::string> prompt(const std::string& title, const std::string& text,
                                            const std::string& answer) = 0;
  virtual std::optional<std::string> openFile(const FileQuestion& question) = 0;
  virtual std::optional<std::string> saveFile(const FileQuestion& question) = 0;
  // Opens a finished file in the desktop's viewer; false where there is none.
  virtual bool openInViewer(const std::string& /*path*/) { return false; }
};

}  // namespace zephon
