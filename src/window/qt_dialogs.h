#pragma once

#include <QPointer>
#include <QString>

#include "screen/dialogs.h"

class QDialog;
class QFileDialog;
class QWidget;

namespace zephon {

// The boxes, drawn by Qt over the window. While one is up Qt's loop runs, so timers tick and the line is
// served. File dialogs start in the folder that was used last.
class QtDialogs : public Dialogs {
 public:
  void setWindow(QWidget* window) { window_ = window; }
  // Closes what is up, and answers every later question carefully without asking: the program is ending.
  void close();

  void message(const std::string& text, const std::string& advice) override;
  void titledMessage(const std::string& title, const std::string& text) override;
  bool yesNo(const std::string& question, const std::string& subject = {}) override;
  bool okCancel(const std::string& question, const std::string& title) override;
  std::optional<std::string> prompt(const std::string& title, const std::string& text,
                                    const std::string& answer) override;
  std::optional<std::string> openFile(const FileQuestion& question) override;
  std::optional<std::string> saveFile(const FileQuestion& question) override;
  bool openInViewer(const std::string& path) override;

 private:
  int run(QDialog& dialog);
  void box(const QString& title, const QString& text, const QString& advice);
  void page(const QString& text);
  std::optional<std::string> runFile(QFileDialog& dialog, const FileQuestion& question);

  QPointer<QWidget> window_;
  QString folder_;  // empty until the first file
  bool closed_ = false;
};

}  // namespace zephon
