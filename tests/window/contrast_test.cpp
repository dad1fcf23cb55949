// Colours that a person with weak sight can still tell from what they stand on, on a light desktop and a
// dark.

#include <QLabel>
#include <QLineEdit>

#include "window/bare_main.h"
#include "window/card.h"
#include "window/colours.h"
#include "window/graph_axes.h"
#include "window/tool_window.h"

namespace zephon {
namespace {

struct Desktop {
  const char* name;
  QRgb window, text, base, highlight;
};
constexpr Desktop kDesktops[] = {{"Light", 0xffefefef, 0xff000000, 0xffffffff, 0xff308cc6},
                                 {"Dark", 0xff353535, 0xffeeeeec, 0xff2d2d2d, 0xff15539e}};

QPalette paletteOf(const Desktop& desktop) {
  QPalette palette{QColor(desktop.window)};
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(role, QColor(desktop.text));
  palette.setColor(QPalette::Base, QColor(desktop.base));
  palette.setColor(QPalette::Highlight, QColor(desktop.highlight));
  return palette;
}

class Contrast : public testing::TestWithParam<Desktop> {
 protected:
  ~Contrast() override { QApplication::setPalette(before_); }
  const QPalette palette_ = paletteOf(GetParam());
  VirtualLoop loop_;
  testing_support::BareMain bare_{loop_};

 private:
  const QPalette before_ = QApplication::palette();
};

TEST_P(Contrast, EveryInkStandsOutOfWhatItIsDrawnOn) {
  EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
  const QColor text = palette_.color(QPalette::Text);
  const QColor selected = tone(Tone::Selected, palette_);
  EXPECT_GE(contrast(text, selected), kTextContrast);
  for (const QColor& ground : plainGrounds(palette_)) {
    EXPECT_GE(contrast(text, ground), kTextContrast);
    for (const InkRule& rule : inkRules()) {
      const QColor ink = tone(rule.ink, palette_);
      EXPECT_GE(contrast(ink, ground), rule.onPlain) << static_cast<int>(rule.ink);
      EXPECT_GE(contrast(ink, selected), rule.onSelected) << static_cast<int>(rule.ink);
    }
    for (std::size_t i = 0; i < kPlotStyles; ++i) {
      EXPECT_GE(contrast(plotStyle(i, palette_).colour, ground), kShapeContrast) << i;
      EXPECT_GE(contrast(plotStyle(i, palette_).ink, ground), kTextContrast) << i;
    }
    const Slider& record = bare_.main.measurement.recSlide;
    for (std::size_t i = 1; i < record.pointers(); ++i) {
      EXPECT_GE(contrast(shapeColour(record.pointer(i).colour, palette_), ground), kShapeContrast) << i;
      EXPECT_GE(contrast(textColour(record.pointer(i).colour, palette_), ground), kTextContrast) << i;
    }
  }
}

// What a widget's letters stand on: a field's own ground, else the card or the window below it.
QColor groundOf(const QWidget& widget) {
  const bool field = qobject_cast<const QLineEdit*>(&widget) && widget.styleSheet().isEmpty();
  if (field) return widget.palette().color(QPalette::Active, QPalette::Base);
  for (const QWidget* under = &widget; under; under = under->parentWidget()) {
    if (dynamic_cast<const Card*>(under)) return tone(Tone::Card, widget.palette());
  }
  return widget.palette().color(QPalette::Active, QPalette::Window);
}

// The desktop may change its colours while the program runs.
TEST_P(Contrast, EveryTextOnEveryPageCanBeRead) {
  const auto devices = testing_support::allDevices();
  for (const simulator::Profile& device : {devices.front(), devices.back()}) {
    testing_support::ToolWindow tool(device);
    tool.use(tool.main.frame.measBtn, 5000);
    tool.main.frame.formCaption.setColour(tool.main.measurement.recSlide.pointer(2).colour);
    QApplication::setPalette(palette_);
    testing_support::settle();
    int texts = 0;
    const auto look = [&](const std::string& page) {
      for (const QWidget* widget : tool.window.findChildren<QWidget*>()) {
        const bool label = qobject_cast<const QLabel*>(widget);
        if (!widget->isVisible() || !(label || qobject_cast<const QLineEdit*>(widget))) continue;
        const auto group = widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QColor ink = widget->palette().color(group, label ? QPalette::WindowText : QPalette::Text);
        EXPECT_GE(contrast(ink, groundOf(*widget)), kTextContrast)
            << page << ": " << ink.name().toStdString() << " " << widget->objectName().toStdString() << " "
            << widget->accessibleName().toStdString();
        ++texts;
      }
    };
    look("as it stood");
    tool.walk(look);
    EXPECT_GT(texts, 80);
    QApplication::setPalette(QPalette());
  }
}

INSTANTIATE_TEST_SUITE_P(Desktops, Contrast, testing::ValuesIn(kDesktops),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace zephon
