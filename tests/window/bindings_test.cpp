#include "window/bindings.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include "window/fields.h"
#include "window/meter.h"
#include "window/reading.h"
#include "window/window_fixture.h"
#include "window/words.h"

namespace zephon {
namespace {

class Bindings : public testing_support::WindowTest {
 protected:
  static void type(QWidget* field, const QString& text) {
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
  }
};

TEST_F(Bindings, EveryElementHasAWidgetThatFollowsIt) {
  // The readings stand in their meters, and the list is not made before something is found.
  MeasurementElements& m = main.measurement;
  const std::vector<const Element*> without = {&m.VlnLbl, &m.Ilbl,  &m.Plbl,  &m.VngLbl,
                                               &m.fLbl,   &m.pfLbl, &m.cfLbl, &main.frame.findingsList};
  int found = 0;
  for (Element* element : main.elements.all()) {
    if (dynamic_cast<Graph*>(element) || dynamic_cast<Tree*>(element) || dynamic_cast<Image*>(element))
      continue;
    if (std::count(without.begin(), without.end(), element) > 0) continue;
    ++found;
    QWidget* widget = find(*element);
    ASSERT_NE(widget, nullptr);
    for (const bool on : {true, false, true}) {
      element->setVisible(on);
      EXPECT_EQ(widget->isHidden(), !on) << element->name();
      element->setEnabled(on);
      EXPECT_EQ(widget->isEnabled(), on) << element->name();
    }
    element->setTooltip("told by the test");
    EXPECT_TRUE(widget->toolTip().startsWith("told by the test")) << element->name();
    element->setFontSize(17);
    EXPECT_EQ(widget->font().pointSize(), 17) << element->name();
  }
  EXPECT_GT(found, 80);
}

TEST_F(Bindings, AButtonIsPressedInEveryWayOnceAndShowsWhatItsElementHolds) {
  Button& element = main.setup.enableGndBtn;
  open(&Pages::setupOn);
  std::vector<MouseButton> pressed;
  element.onMouseUp = [&](MouseButton mouse) { pressed.push_back(mouse); };
  auto* button = find<StateButton>(element);
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::mouseClick(button, Qt::RightButton);
  QTest::keyClick(button, Qt::Key_Space);
  QTest::keyClick(button, Qt::Key_Return);
  QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
      QAccessibleActionInterface::toggleAction());
  using enum MouseButton;
  EXPECT_EQ(pressed, (std::vector{Left, Right, Left, Left, Left}));
  EXPECT_FALSE(element.value() || button->isChecked());
  element.setEnabled(false);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(pressed.size(), 5U);

  element.setEnabled(true);
  element.onChange = [&](bool on) {
    if (on) element.setValue(false);  // the device refused
  };
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_FALSE(button->isChecked());
  element.onChange = {};
  element.setOnText("on");
  element.setValue(true);
  EXPECT_TRUE(button->isChecked() && button->caption() == "on");
  element.setTexts("");
  EXPECT_EQ(button->accessibleName(), say(words::kGroundDetection)) << "never nameless";
}

TEST_F(Bindings, ANumberIsHeldToItsRangeOnlyByTheUser) {
  NumEdit& element = main.setup.OVcoNumEdit;
  open(&Pages::setupOn);
  auto* field = find<NumberField>(element);
  element.setValue(7);  // an odd value of the device is seen
  EXPECT_EQ(field->text(), "7 V");

  for (const auto& [typed, held] : {std::pair{"155", 155}, {"500", 160}, {"700", 160}, {"3", 130}}) {
    type(field, typed);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(element.value() == held && field->value() == held) << "typed " << typed;
  }
  element.setRange({130, 160, 5});
  QTest::keyClick(field, Qt::Key_Up);
  EXPECT_EQ(element.value(), 135);
}

TEST_F(Bindings, ADateStandsStillWhileItIsEdited) {
  DateEdit& element = main.setup.timeNumEdit;
  open(&Pages::setupOn);
  int begun = 0;
  element.onEditStart = [&] { ++begun; };
  auto* field = find<DateField>(element);
  element.setValue(45356 + 9.5 / 24);  // 5 March 2024
  EXPECT_EQ(field->text(), "03/05/24 09:30:00");
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Home);
  QTest::keyClick(field, Qt::Key_Right);
  EXPECT_EQ(begun, 0) << "moving about changes nothing";
  field->setSelectedSection(QDateTimeEdit::YearSection);
  QTest::keyClicks(field, "31");
  EXPECT_GT(begun, 0);
  EXPECT_EQ(field->text(), "03/05/31 09:30:00");
  EXPECT_NEAR(element.value(), 47912 + 9.5 / 24, 1e-6) << "5 March 2031";
}

TEST_F(Bindings, TextGoesBothWaysWithoutAnEcho) {
  TextBox& element = main.setup.userIDtxt;
  open(&Pages::setupOn);
  auto* field = find<QLineEdit>(element);
  int changes = 0;
  element.watch([&changes] { ++changes; });
  type(field, "BOOTH 4 and more");
  EXPECT_EQ(changes, 10);
  EXPECT_EQ(element.text(), "BOOTH 4 an") << "ten characters";
  element.setText("B\u00fcro");
  EXPECT_EQ(field->text(), QStringLiteral("B\u00fcro"));
  element.setStale(true);
  EXPECT_EQ(field->accessibleDescription(), say(words::kNotLive));
}

TEST_F(Bindings, AChoiceIsTheUsersOnce) {
  Combo& element = main.com.langCombo;
  open(&Pages::comOn);
  element.setVisible(true);
  element.setItems({"DE", "EN", "FR"});
  auto* field = find<ChoiceField>(element);
  element.onClick = [&] {
    if (!element.enabled()) return;
    element.setEnabled(false);
    element.setItems({"DE", "FR"});  // as loading a language does
    element.setIndex(0);
    element.setEnabled(true);
  };
  emit field->activated(2);
  EXPECT_EQ(element.index(), 0);
  EXPECT_EQ(field->currentText(), "DE");
}

TEST_F(Bindings, AMeterTellsItsZoneInWords) {
  MeasurementElements& page = main.measurement;
  open(&Pages::measuring);
  auto* meter = find<Meter>(page.VlnSlide);
  using State = std::tuple<const char*, Colour, bool, int, Zone>;
  for (const auto& [caption, colour, stale, mode, zone] :
       {State{"V", kGreen, false, 1, Zone::Empty}, State{"103.10 V", kYellow, false, 1, Zone::Caution},
        State{"118.42 V", kRed, true, 1, Zone::NotLive}, State{"V", kRed, false, 0, Zone::Off}}) {
    page.VlnLbl.setCaption(caption);
    page.VlnLbl.setStale(stale);
    page.VlnSlide.setPointerColour(0, colour);
    page.VlnSlide.setPointerMode(0, mode);
    EXPECT_EQ(meter->zone(), zone) << caption;
    EXPECT_TRUE(meter->accessibleDescription().contains(zoneWord(zone)));
  }
  auto* energy = find<ReadingButton>(page.EUtxt);
  int clicks = 0;
  page.VlnSlide.onClick = page.EUtxt.onClick = [&] { ++clicks; };
  for (QWidget* one : {static_cast<QWidget*>(meter), static_cast<QWidget*>(energy)}) {
    QTest::mouseClick(one, Qt::LeftButton);
    QTest::mouseClick(one, Qt::RightButton);
    QTest::keyClick(one, Qt::Key_Space);
  }
  EXPECT_EQ(clicks, 4);
}

TEST_F(Bindings, TheFocusComesBackToAControlThatWasAwayForAMoment) {
  open(&Pages::setupOn);
  QWidget* button = find(main.setup.updateLimsBtn);
  button->setFocus();
  main.setup.updateLimsBtn.setEnabled(false);
  main.setup.updateLimsBtn.setEnabled(true);
  EXPECT_TRUE(button->hasFocus());
}

}  // namespace
}  // namespace zephon
