#include "window/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <functional>

#include "window/qt_loop.h"

namespace zephon {
namespace {

class QtDialogsTest : public testing::Test {
 protected:
  // Answers the next box once it is up.
  template <class Box>
  void answer(const std::function<void(Box&)>& how) {
    loop_.callAt(loop_.now() + fromMillis(10), [this, how] {
      auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      ++answered_;
      how(*box);
    });
  }
  void press(QMessageBox::StandardButton button) {
    answer<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
  }

  QtLoop loop_;
  QtDialogs dialogs_;
  int answered_ = 0;
};

TEST_F(QtDialogsTest, AMessageStandsBesideItsAdviceAndAPageOfTextScrolls) {
  answer<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "COM Error: <b>5</b>");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.informativeText(), "Check the cable.");
    box.accept();
  });
  dialogs_.message("COM Error: <b>5</b>", "Check the cable.");
  std::string page;
  for (int line = 0; line < 25; ++line) page += "Line " + std::to_string(line) + "\n";
  answer<QDialog>([&](QDialog& box) {
    EXPECT_EQ(box.findChild<QPlainTextEdit*>()->toPlainText().toStdString(), page);
    EXPECT_LT(box.height(), 500);
    box.reject();
  });
  dialogs_.message(page, {});
  EXPECT_EQ(answered_, 2);
}

TEST_F(QtDialogsTest, OnlyYesIsYes) {
  press(QMessageBox::Yes);
  EXPECT_TRUE(dialogs_.yesNo("Clear?"));
  press(QMessageBox::No);
  EXPECT_FALSE(dialogs_.yesNo("Clear?"));
  answer<QMessageBox>([](QMessageBox& box) { box.close(); });
  EXPECT_FALSE(dialogs_.yesNo("Clear?"));
  press(QMessageBox::Ok);
  EXPECT_TRUE(dialogs_.okCancel("Replace?", "It exists."));
  press(QMessageBox::Cancel);
  EXPECT_FALSE(dialogs_.okCancel("Replace?", "It exists."));
  EXPECT_EQ(answered_, 5);
}

TEST_F(QtDialogsTest, APromptGivesItsTextOrNothing) {
  answer<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), "BOOTH 4");
    box.setTextValue(QStringLiteral("Büro"));
    box.accept();
  });
  EXPECT_EQ(dialogs_.prompt("ID", "New ID", "BOOTH 4"), "Büro");
  answer<QInputDialog>([](QInputDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs_.prompt("ID", "New ID", ""), std::nullopt);
}

TEST_F(QtDialogsTest, ASavedNameTakesTheFiltersExtensionAndTheNextBoxItsFolder) {
  const QTemporaryDir first;
  const QTemporaryDir second;
  const FileQuestion question{
      first.path().toStdString(), "Report 1", {{"PDF (*.pdf)", "pdf"}, {"Comma-Separated (*.csv)", "csv"}}};
  answer<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.directory(), QDir(first.path()));
    EXPECT_TRUE(box.testOption(QFileDialog::DontConfirmOverwrite)) << "the writer asks";
    box.selectNameFilter(QStringLiteral("Comma-Separated (*.csv)"));
    emit box.filterSelected(box.selectedNameFilter());
    box.setDirectory(second.path());
    box.selectFile(QStringLiteral("Report 1"));
    static_cast<QDialog&>(box).done(QDialog::Accepted);
  });
  EXPECT_EQ(dialogs_.saveFile(question), second.filePath(QStringLiteral("Report 1.csv")).toStdString());

  QFile file(second.filePath(QStringLiteral("log.csv")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  answer<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.directory(), QDir(second.path())) << "used last";
    box.reject();
  });
  EXPECT_EQ(dialogs_.openFile(question), std::nullopt);
}

TEST_F(QtDialogsTest, AFinishedFileGoesToTheDesktopsViewer) {
  QTextBrowser viewer;
  QDesktopServices::setUrlHandler(QStringLiteral("file"), &viewer, "setSource");
  EXPECT_TRUE(dialogs_.openInViewer("/reports/B\u00FCro 4 #1.pdf"));
  QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
  EXPECT_EQ(viewer.source(), QUrl::fromLocalFile(QStringLiteral("/reports/B\u00FCro 4 #1.pdf")));
  EXPECT_FALSE(dialogs_.openInViewer("/reports/1.pdf")) << "no desktop here";
}

}  // namespace
}  // namespace zephon
