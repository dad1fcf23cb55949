#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "screen/button.h"
#include "screen/combo.h"
#include "screen/date_edit.h"
#include "screen/image.h"
#include "screen/num_edit.h"
#include "screen/slider.h"
#include "screen/text_box.h"
#include "window/legend.h"
#include "window/state_button.h"

class QLabel;
class QProgressBar;
class QWidget;

namespace zephon {

class ChoiceField;
class DateField;
class Meter;
class NumberField;
class ReadingButton;
class RecordBar;
class SlideField;
class Swatch;
class TextField;

// One drawing function for each kind of element. The widget that it makes carries the element's name, follows
// its visible and enabled state, tooltip, font size and value for as long as it lives, and passes what the
// user does to the element's own verbs. The element must outlive the widget.
//
// The accessible name is the text that a person sees: the caption, or the legend where the element has none.

// What a screen reader adds to a value whose own text does not say what it is of.
void describeBy(QWidget& widget, const Word& word);
// "130 – 160 V"
QString rangeText(const NumEdit::Range& range, const QString& unit);

// Visible and enabled state, tooltip and font size of the element as they are now.
void followCommon(QWidget& widget, const Element& element);

QLabel* draw(Label& element, QWidget* parent);
QLabel* draw(Image& element, const Legend& legend, int height, QWidget* parent);
StateButton* draw(Button& element, const Legend& legend, QWidget* parent,
                  StateButton::Look look = StateButton::Look::Plain, Glyph glyph = Glyph::None);
NumberField* draw(NumEdit& element, const Legend& legend, const QString& unit, QWidget* parent);
DateField* draw(DateEdit& element, const Legend& legend, QWidget* parent);
TextField* draw(TextBox& element, const Legend& legend, QWidget* parent);
ChoiceField* draw(Combo& element, const Legend& legend, QWidget* parent);

// A number that can only be read and pressed.
ReadingButton* drawReading(TextBox& element, const Legend& legend, const QString& unit, QWidget* parent);

// A slider is drawn as what it serves for.
using Marks = std::function<std::vector<double>()>;  // limits to mark on the scale, read at each drawing
Meter* drawMeter(Slider& element, Label& reading, const Legend& legend, QWidget* parent,
                 const Marks& marks = {});
// `classes` are the legends of its pointers from the first on.
RecordBar* drawRecord(Slider& element, const Legend& legend, const std::vector<Label*>& classes,
                      QWidget* parent);
Swatch* drawSwatch(Slider& record, std::size_t pointer, Label& legend, QWidget* parent);
QProgressBar* drawProgress(Slider& element, const Legend& legend, QWidget* parent);
SlideField* drawSlide(Slider& element, const Legend& legend, QWidget* parent);

// Text with the element's tooltip and what the window adds to it, on a line each.
void setTooltip(QWidget& widget, const Element& element, const QString& addition);

}  // namespace zephon
