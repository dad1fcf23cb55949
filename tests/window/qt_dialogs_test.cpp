#include "window/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <functional>

#include "window/heard.h"
#include "window/qt_loop.h"

namespace zephon {
namespace {

class QtDialogsTest : public testing::Test {
 protected:
  // Answers the next box once it is up and has been heard out.
  template <class Box>
  void answer(const std::function<void(Box&)>& how) {
    loop_.callAt(loop_.now() + fromMillis(10), [this, how] {
      auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      testing_support::expectNamesAndRoles(QAccessible::queryAccessibleInterface(box),
                                           box->windowTitle().toStdString(), false);
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
  press(QMessageBox::Ok);
  EXPECT_TRUE(dialogs_.okCancel("Replace?", "It exists."));
  press(QMessageBox::Cancel);
  EXPECT_FALSE(dialogs_.okCancel("Replace?", "It exists."));
}

TEST_F(QtDialogsTest, APromptGivesItsText) {
  answer<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), "BOOTH 4");
    box.setTextValue(QStringLiteral("Büro"));
    box.accept();
  });
  EXPECT_EQ(dialogs_.prompt("ID", "New ID", "BOOTH 4"), "Büro");
}

TEST_F(QtDialogsTest, ASavedNameTakesTheFiltersExtensionAndTheNextBoxItsFolder) {
  const QTemporaryDir first;
  const QTemporaryDir second;
  const FileQuestion question{
      first.path().toStdString(), "Report 1", {{"PDF (*.pdf)", "pdf"}, {"Comma-Separated (*.csv)", "csv"}}};
  answer<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.directory(), QDir(first.path()));
    EXPECT_TRUE(box.testOption(QFileDialog::DontConfirmOverwrite)) << "the writer asks";
    box.setDirectory(second.path());
    static_cast<QDialog&>(box).done(QDialog::Accepted);
  });
  EXPECT_TRUE(dialogs_.saveFile(question));
  const std::tuple<const char*, bool, const char*> names[] = {
      {"Report 1", true, "Report 1.csv"},
      {"Log 05-31-2013 14.02.07", false, "Log 05-31-2013 14.02.07.pdf"},
      {"Log.csv", false, "Log.csv"}};
  for (const auto& [name, asCsv, saved] : names) {
    answer<QFileDialog>([csv = asCsv](QFileDialog& box) {
      if (csv) box.selectNameFilter(QStringLiteral("Comma-Separated (*.csv)"));
      static_cast<QDialog&>(box).done(QDialog::Accepted);
    });
    EXPECT_EQ(dialogs_.saveFile({{}, name, question.filters}),
              second.filePath(QString::fromLatin1(saved)).toStdString());
  }

  answer<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.directory(), QDir(second.path())) << "used last";
    box.reject();
  });
  EXPECT_EQ(dialogs_.openFile(question), std::nullopt);
}

}  // namespace
}  // namespace zephon
