#pragma once

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSlider>
#include <functional>

#include "screen/num_edit.h"

namespace zephon {

// The entry fields. None of them changes by a turn of the wheel that was meant for the page: the wheel counts
// only where the keyboard's focus is. What a user does is told; what they show is set from outside.

// A number with its range and step. It shows any value, also one outside the range.
class NumberField : public QDoubleSpinBox {
 public:
  explicit NumberField(QWidget* parent);
  std::function<void(double value)> onEdit;
  void show(double value, const NumEdit::Range& range);

 protected:
  void stepBy(int steps) override;
  StepEnabled stepEnabled() const override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fade();

  NumEdit::Range range_;
};

// A date and time, "mm/dd/yy hh:nn:ss". The value is a date value: days since 30 December 1899.
class DateField : public QDateTimeEdit {
 public:
  explicit DateField(QWidget* parent);
  std::function<void()> onBegin;  // before the first change of it
  std::function<void(double value)> onEdit;
  void show(double value);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void stepBy(int steps) override;
  void wheelEvent(QWheelEvent* event) override;
};

// A line of text. A press is told; on a text that can't be typed into, the space bar and Enter press it.
class TextField : public QLineEdit {
 public:
  explicit TextField(QWidget* parent);
  void showAsNumber(double scale);
  std::function<void()> onPress;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

class ChoiceField : public QComboBox {
 public:
  explicit ChoiceField(QWidget* parent);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

class SlideField : public QSlider {
 public:
  explicit SlideField(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace zephon
