#include "window/qt_dialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "window/bindings.h"

namespace zephon {
namespace {

constexpr int kLinesOfPage = 8;

QString titleOf(const QWidget* window) {
  return window ? window->windowTitle() : QApplication::applicationDisplayName();
}

QStringList filtersOf(const FileQuestion& question) {
  QStringList names;
  for (const FileFilter& filter : question.filters) names.append(toQt(filter.name));
  return names;
}

// A name that ends in no filter's extension gets that of the filter that stands chosen. Qt's own way takes
// anything behind a dot for an extension, the minutes of "14.02.07" too.
QString withExtension(const QString& path, const QFileDialog& dialog, const FileQuestion& question) {
  const FileFilter* chosen = nullptr;
  for (const FileFilter& filter : question.filters) {
    if (path.endsWith('.' + toQt(filter.extension), Qt::CaseInsensitive)) return path;
    if (!chosen || toQt(filter.name) == dialog.selectedNameFilter()) chosen = &filter;
  }
  return chosen ? path + '.' + toQt(chosen->extension) : path;
}

}  // namespace

void QtDialogs::close() {
  closed_ = true;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* dialog = qobject_cast<QDialog*>(widget)) dialog->reject();
  }
}

int QtDialogs::run(QDialog& dialog) {
  return closed_ ? static_cast<int>(QDialog::Rejected) : dialog.exec();
}

// A page of text scrolls; a box as high as its text would not fit a small screen.
void QtDialogs::page(const QString& text) {
  QDialog box(window_);
  box.setWindowTitle(titleOf(window_));
  auto* column = new QVBoxLayout(&box);
  auto* shown = new QPlainTextEdit(text, &box);
  shown->setReadOnly(true);
  shown->setTabChangesFocus(true);
  shown->setAccessibleName(box.windowTitle());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &box);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  column->addWidget(shown);
  column->addWidget(buttons);
  box.resize(620, 420);
  run(box);
}

void QtDialogs::box(const QString& title, const QString& text, const QString& advice) {
  QMessageBox box(advice.isEmpty() ? QMessageBox::Information : QMessageBox::Warning, title, text,
                  QMessageBox::Ok, window_);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(advice);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  run(box);
}

void QtDialogs::message(const std::string& text, const std::string& advice) {
  if (std::count(text.begin(), text.end(), '\n') >= kLinesOfPage) return page(toQt(text));
  box(titleOf(window_), toQt(text), toQt(advice));
}

void QtDialogs::titledMessage(const std::string& title, const std::string& text) {
  box(toQt(title), toQt(text), {});
}

bool QtDialogs::yesNo(const std::string& question, const std::string& subject) {
  QMessageBox box(QMessageBox::Question, titleOf(window_), toQt(question), QMessageBox::Yes | QMessageBox::No,
                  window_);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(toQt(subject));
  box.setDefaultButton(QMessageBox::No);
  return run(box) == QMessageBox::Yes;
}

bool QtDialogs::okCancel(const std::string& question, const std::string& title) {
  QMessageBox box(QMessageBox::Question, toQt(title), toQt(question), QMessageBox::Ok | QMessageBox::Cancel,
                  window_);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Cancel);
  return run(box) == QMessageBox::Ok;
}

std::optional<std::string> QtDialogs::prompt(const std::string& title, const std::string& text,
                                             const std::string& answer) {
  QInputDialog dialog(window_);
  dialog.setWindowTitle(toQt(title));
  dialog.setLabelText(toQt(text));
  dialog.setTextValue(toQt(answer));
  if (run(dialog) != QDialog::Accepted) return std::nullopt;
  return fromQt(dialog.textValue());
}

std::optional<std::string> QtDialogs::runFile(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setNameFilters(filtersOf(question));
  dialog.setDirectory(folder_.isEmpty() ? toQt(question.folder) : folder_);
  if (!question.name.empty()) dialog.selectFile(toQt(question.name));
  if (run(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  QString path = dialog.selectedFiles().constFirst();
  if (dialog.acceptMode() == QFileDialog::AcceptSave) path = withExtension(path, dialog, question);
  folder_ = QFileInfo(path).absolutePath();
  return fromQt(path);
}

std::optional<std::string> QtDialogs::openFile(const FileQuestion& question) {
  QFileDialog dialog(window_);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return runFile(dialog, question);
}

// Whoever writes the file asks about one that stands there, so the dialog does not.
std::optional<std::string> QtDialogs::saveFile(const FileQuestion& question) {
  QFileDialog dialog(window_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return runFile(dialog, question);
}

bool QtDialogs::openInViewer(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(path)));
}

}  // namespace zephon
