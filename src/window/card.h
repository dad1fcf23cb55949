#pragma once

#include <QFrame>
#include <QLabel>
#include <initializer_list>

#include "window/legend.h"

class QPainter;
class QVBoxLayout;

namespace zephon {

// The ground that a group of controls stands on.
void paintCard(QPainter& painter, const QRectF& box, const QPalette& palette, bool focused);

// The widget is there while any of the elements is visible.
void showWhileAny(QWidget& widget, std::initializer_list<Element*> elements);

// Secondary text, fainter than what it stands beside.
class QuietLabel : public QLabel {
 public:
  QuietLabel(const Legend& text, QWidget* parent);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void fade();
};

// A named group of controls. It is there while any of `members` is visible; without members it always is. One
// with an empty heading shows none.
class Card : public QFrame {
 public:
  Card(const Legend& heading, std::initializer_list<Element*> members, QWidget* parent);
  QVBoxLayout* column() const { return column_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void addHeading(const Legend& heading);

  QVBoxLayout* column_;
};

}  // namespace zephon
