// The window in each of the languages: everything changes at once, and every word has room.

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <filesystem>
#include <map>

#include "window/graph_canvas.h"
#include "window/meter.h"
#include "window/page_walk.h"
#include "window/state_button.h"

namespace zephon {
namespace {

using testing_support::PageWalk;

class Languages : public testing::TestWithParam<simulator::Profile> {};

// All that can be read on the window as it is: the texts, and what is told by tooltips and to a screen
// reader.
std::string textsOf(PageWalk& tool) {
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

std::map<std::string, std::string> textsOfPages(PageWalk& tool) {
  std::map<std::string, std::string> texts;
  tool.walk([&](const std::string& page) { texts[page] = textsOf(tool); });
  return texts;
}

// Both have seen all pages before; one of them in another language, until it is changed on the setup page.
TEST_P(Languages, AChangeLeavesNoWordOfTheLanguageBefore) {
  constexpr const char* kChanges[][2] = {{"EN", "DE"}, {"FR", "ES"}};
  for (const auto& [from, to] : kChanges) {
    SCOPED_TRACE(std::string(from) + " to " + to);
    const auto run = [&](const std::string& first, const std::string& second) {
      PageWalk tool(GetParam(), first);
      textsOfPages(tool);
      const auto& items = tool.main.com.langCombo.items();
      tool.main.com.langCombo.choose(
          static_cast<int>(std::find(items.begin(), items.end(), second) - items.begin()));
      tool.settle();
      auto texts = std::map<std::string, std::string>{{"at once", textsOf(tool)}};
      texts.merge(textsOfPages(tool));
      return texts;
    };
    const auto wanted = run(to, to);
    for (const auto& [page, texts] : run(from, to)) EXPECT_EQ(texts, wanted.at(page)) << page;
  }
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
    const bool wrapped = label->wordWrap();
    if (!wrapped && label->sizeHint().width() > label->width()) return "is too narrow";
    if (wrapped && label->heightForWidth(label->width()) > label->height()) return "is too low";
  }
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    if (line->fontMetrics().horizontalAdvance(line->displayText()) > line->contentsRect().width())
      return "is too short";
  }
  if (const auto* area = qobject_cast<const QScrollArea*>(&widget)) {
    if (area->horizontalScrollBar()->maximum() > 0) return "scrolls sideways";
    if (area->viewport()->width() < area->widget()->minimumSizeHint().width())
      return "is wider than its page";
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
    PageWalk tool(GetParam(), language);
    tool.walk([&](const std::string& page) {
      for (const QSize size : {QSize(1366, 768), QSize(1024, 600)}) {
        tool.window.resize(size);
        tool.settle();
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

// The sizes that the form gives to the captions of some buttons are sizes that they can be drawn in.
TEST_P(Languages, CaptionsKeepTheSizeThatTheFormGivesThem) {
  for (const char* language : {"EN", "DE", "FR", "ES"}) {
    PageWalk tool(GetParam(), language);
    tool.walk([&](const std::string& page) {
      tool.window.grab();
      for (const Element* element : tool.main.elements.all()) {
        const auto* button = dynamic_cast<StateButton*>(
            tool.window.findChild<QWidget*>(QString::fromStdString(element->name())));
        if (!button || !button->isVisible() || element->fontSize() == 0) continue;
        EXPECT_EQ(button->drawnCaption().font.pointSizeF(), element->fontSize())
            << language << " " << page << ": " << button->caption().toStdString();
      }
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Devices, Languages, testing::ValuesIn(testing_support::allDevices()),
                         testing_support::deviceName);

// Qt's own words come with Qt, where its translations are installed.
TEST(QtsWords, AreThoseOfTheLanguage) {
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  constexpr const char* kCancel[][2] = {
      {"DE", "Abbrechen"}, {"FR", "Annuler"}, {"ES", "Cancelar"}, {"EN", "Cancel"}, {"XX", "Cancel"}};
  for (const auto& [language, cancel] : kCancel) {
    PageWalk tool({}, "EN");
    tool.main.config.language = language;
    tool.main.com.langCombo.setItems({language});  // as a dictionary does that has been read
    const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Cancel);
    const QString code = QString::fromLatin1(language).toLower();
    const bool there = QFile::exists(folder + "/qtbase_" + code + ".qm");
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text().remove('&').toStdString(), there ? cancel : "Cancel");
  }
}

}  // namespace
}  // namespace zephon
