#include "window/fields.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimeZone>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "text/calendar.h"
#include "window/colours.h"

namespace zephon {
namespace {

constexpr double kAnyNumber = 1e9;  // beyond whatever a device holds
constexpr int kHeight = 30;         // of a field beside a button

bool isWhole(double value) {
  return value == std::floor(value);
}

QDateTime fromDateValue(double value) {
  const CalendarTime time = calendarFromValue(value);
  return {QDate(time.year, time.month, time.day), QTime(time.hour, time.minute, time.second), Qt::UTC};
}

double toDateValue(const QDateTime& moment) {
  const QDate date = moment.date();
  const QTime time = moment.time();
  return dateValue({date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()});
}

// Keys that change a field's text, and not those that move about in it or leave it.
bool changesText(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return !event.text().isEmpty() && event.text().front().isPrint();
  }
}

}  // namespace

NumberField::NumberField(QWidget* parent) : QDoubleSpinBox(parent) {
  setRange(-kAnyNumber, kAnyNumber);
  setMinimumHeight(kHeight);
  fade();
  setDecimals(0);
  setKeyboardTracking(false);
  setFocusPolicy(Qt::StrongFocus);
  setAlignment(Qt::AlignRight);
  setLocale(QLocale::c());
  setGroupSeparatorShown(false);
  connect(this, &QDoubleSpinBox::valueChanged, this, [this](double value) {
    if (onEdit) onEdit(value);
  });
}

// A fixed value is still to be read.
void NumberField::fade() {
  QPalette readable;
  readable.setColor(QPalette::Disabled, QPalette::Text, tone(Tone::Muted, QApplication::palette()));
  setPalette(readable);
}

void NumberField::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) fade();
  QDoubleSpinBox::changeEvent(event);
}

void NumberField::show(double value, const NumEdit::Range& range) {
  const QSignalBlocker quiet(this);
  range_ = range;
  setDecimals(isWhole(value) && isWhole(range.increment) ? 0 : 2);
  setValue(value);
}

void NumberField::stepBy(int steps) {
  interpretText();
  if (onEdit) onEdit(value() + steps * range_.increment);
  selectAll();
}

QAbstractSpinBox::StepEnabled NumberField::stepEnabled() const {
  StepEnabled able = StepNone;
  if (value() < range_.maximum) able |= StepUpEnabled;
  if (value() > range_.minimum) able |= StepDownEnabled;
  return able;
}

void NumberField::wheelEvent(QWheelEvent* event) {
  hasFocus() ? QDoubleSpinBox::wheelEvent(event) : event->ignore();
}

DateField::DateField(QWidget* parent) : QDateTimeEdit(parent) {
  setMinimumHeight(kHeight);
  setTimeSpec(Qt::UTC);
  setDisplayFormat(QStringLiteral("MM/dd/yy HH:mm:ss"));
  setLocale(QLocale::c());
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& moment) {
    if (onEdit) onEdit(toDateValue(moment));
  });
}

void DateField::show(double value) {
  const QSignalBlocker quiet(this);
  const QDateTime moment = fromDateValue(value);
  if (moment != dateTime()) setDateTime(moment);
}

void DateField::keyPressEvent(QKeyEvent* event) {
  if (changesText(*event) && onBegin) onBegin();
  QDateTimeEdit::keyPressEvent(event);
}

void DateField::stepBy(int steps) {
  if (onBegin) onBegin();
  QDateTimeEdit::stepBy(steps);
}

void DateField::wheelEvent(QWheelEvent* event) {
  hasFocus() ? QDateTimeEdit::wheelEvent(event) : event->ignore();
}

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
  setMinimumHeight(kHeight);
  setFocusPolicy(Qt::StrongFocus);
}

// Only to be read: a number on the ground itself, in a larger type.
void TextField::showAsNumber(double scale) {
  setFrame(false);
  setMinimumHeight(0);
  setStyleSheet(QStringLiteral("background: transparent"));
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * scale);
  setFont(large);
}

void TextField::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool press = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (isReadOnly() && press && onPress) {
    if (!event->isAutoRepeat()) onPress();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void TextField::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && onPress) onPress();
}

ChoiceField::ChoiceField(QWidget* parent) : QComboBox(parent) {
  setMinimumHeight(kHeight);
  setFocusPolicy(Qt::StrongFocus);
}

void ChoiceField::wheelEvent(QWheelEvent* event) {
  hasFocus() ? QComboBox::wheelEvent(event) : event->ignore();
}

void SlideField::wheelEvent(QWheelEvent* event) {
  hasFocus() ? QSlider::wheelEvent(event) : event->ignore();
}

}  // namespace zephon
