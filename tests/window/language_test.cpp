// The window in each of the languages: everything changes at once, and every word has room.

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <map>

#include "shell/help.h"
#include "window/graph_canvas.h"
#include "window/meter.h"
#include "window/state_button.h"
#include "window/tool_window.h"

namespace zephon {
namespace {

using testing_support::ToolWindow;

class Languages : public testing::TestWithParam<simulator::Profile> {};

// All that can be read on the window as it is, tooltips and a screen reader's texts too.
std::string textsOf(ToolWindow& tool) {
  QStringList texts{tool.window.windowTitle()};
  for (const QWidget* widget : tool.window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    QStringList own{widget->accessibleName(), widget->accessibleDescription(), widget->toolTip()};
    if (const auto* label = qobject_cast<const QLabel*>(widget)) own += label->text();
    if (const auto* button = dynamic_cast<const StateButton*>(widget)) own += button->caption();
    if (const auto* plot = dynamic_cast<const GraphCanvas*>(widget)) {
      for (const auto* axis : plot->axisRect()->axes()) own += axis->label();
    }
    if (!own.join(QString()).isEmpty()) texts += widget->objectName() + ": " + own.join(" | ");
  }
  // Where the settings lie is another folder in each run.
  return texts.join('\n').replace(QString::fromStdString(tool.settings / ""), "settings").toStdString();
}

std::map<std::string, std::string> textsOfPages(ToolWindow& tool) {
  std::map<std::string, std::string> texts;
  tool.walk([&](const std::string& page) { texts[page] = textsOf(tool); });
  return texts;
}

// Both have seen all pages before; one of them in English, until German is chosen on the setup page.
TEST_P(Languages, AChangeLeavesNoWordOfTheLanguageBefore) {
  const auto textsInGerman = [](const std::string& before) {
    ToolWindow tool(GetParam(), before);
    textsOfPages(tool);
    const auto& items = tool.main.com.langCombo.items();
    tool.main.com.langCombo.choose(
        static_cast<int>(std::find(items.begin(), items.end(), "DE") - items.begin()));
    testing_support::settle();
    auto texts = std::map<std::string, std::string>{{"at once", textsOf(tool)}};
    texts.merge(textsOfPages(tool));
    return texts;
  };
  const auto wanted = textsInGerman("DE");
  for (const auto& [page, texts] : textsInGerman("EN")) EXPECT_EQ(texts, wanted.at(page)) << page;
}

// Fields, lists and scrolled pages lay out what they hold by themselves.
bool isPart(const QWidget& widget) {
  const QWidget* above = widget.parentWidget();
  if (above && qobject_cast<const QAbstractScrollArea*>(above->parentWidget())) return true;
  return qobject_cast<const QAbstractSpinBox*>(above) || qobject_cast<const QComboBox*>(above) ||
         qobject_cast<const QAbstractScrollArea*>(above);
}

// What of a widget's words has no room; empty for nothing.
std::string faultOf(const QWidget& widget) {
  if (const auto* button = dynamic_cast<const StateButton*>(&widget); button && button->drawnCaption().cut)
    return "is cut";
  if (const auto* meter = dynamic_cast<const Meter*>(&widget); meter && meter->headIsCut())
    return "has a cut head";
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->wordWrap() ? label->heightForWidth(label->width()) > label->height()
                          : label->sizeHint().width() > label->width())
      return "is too small";
  }
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    if (line->fontMetrics().horizontalAdvance(line->displayText()) > line->contentsRect().width())
      return "is too short";
  }
  if (const auto* area = qobject_cast<const QScrollArea*>(&widget)) {
    if (area->viewport()->width() < area->widget()->minimumSizeHint().width()) return "scrolls sideways";
  }
  if (!widget.isWindow() && !isPart(widget) && !widget.parentWidget()->rect().contains(widget.geometry()))
    return "stands out of its ground";
  for (const QWidget* other : widget.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const bool meets = other != &widget && other->isVisible() && !isPart(widget) &&
                       other->geometry().intersects(widget.geometry());
    if (meets) return "overlaps " + other->objectName().toStdString();
  }
  return {};
}

TEST_P(Languages, EveryWordHasRoomOnSmallScreens) {
  for (const char* language : {"EN", "DE", "FR", "ES"}) {
    ToolWindow tool(GetParam(), language);
    tool.walk([&](const std::string& page) {
      for (const QSize size : {QSize(1366, 768), QSize(1024, 600)}) {
        tool.window.resize(size);
        testing_support::settle();
        EXPECT_EQ(tool.window.size(), size) << language << " " << page;
        tool.window.grab();
        for (const QWidget* widget : tool.window.findChildren<QWidget*>()) {
          if (!widget->isVisible()) continue;
          const std::string fault = faultOf(*widget);
          EXPECT_EQ(fault, "") << language << " " << page << " at " << size.width() << ": "
                               << widget->objectName().toStdString() << " \""
                               << widget->accessibleName().toStdString() << '"';
        }
      }
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Devices, Languages, testing::ValuesIn(testing_support::allDevices()),
                         testing_support::deviceName);

// Qt's own words come with Qt, where its translations are installed.
TEST(QtsWords, AreThoseOfTheLanguage) {
  if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm")) GTEST_SKIP();
  const std::tuple<const char*, const char*, const char*> languages[] = {
      {"DE", "Abbrechen", "\nStrg+1  Messen\n"}, {"EN", "Cancel", "\nCtrl+1  Measure\n"}};
  for (const auto& [language, cancel, key] : languages) {
    const ToolWindow tool({}, language);
    const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Cancel);
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text().remove('&'), cancel);
    EXPECT_NE(helpText(tool.main).find(key), std::string::npos) << "the help names keys as the buttons do";
  }
}

}  // namespace
}  // namespace zephon
