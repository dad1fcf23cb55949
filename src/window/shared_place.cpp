#include "window/shared_place.h"

#include <QVBoxLayout>

#include "window/legend.h"

namespace zephon {
namespace {

class SharedPlace : public QWidget {
 public:
  SharedPlace(Element& element, std::function<QWidget*(QWidget*)> make, QWidget* parent)
      : QWidget(parent), name_(toQt(element.name())), make_(std::move(make)) {
    setLayout(new QVBoxLayout);
    layout()->setContentsMargins(0, 0, 0, 0);
  }

 protected:
  void showEvent(QShowEvent* /*event*/) override {
    auto* widget = window()->findChild<QWidget*>(name_);
    if (!widget) widget = make_(this);
    if (layout()->indexOf(widget) < 0) layout()->addWidget(widget);
    reachInOrder(*widget);
  }

 private:
  // A widget that is made late is the last that the keyboard comes to. It belongs behind whatever can be
  // reached before its place.
  void reachInOrder(QWidget& widget) {
    QWidget* before = previousInFocusChain();
    while (before != this && !(before->focusPolicy() & Qt::TabFocus)) before = before->previousInFocusChain();
    setTabOrder(before, &widget);
  }

  QString name_;
  std::function<QWidget*(QWidget*)> make_;
};

}  // namespace

QWidget* sharedPlace(Element& element, const std::function<QWidget*(QWidget* parent)>& make,
                     const std::function<bool()>& shown, QWidget* parent) {
  auto* place = new SharedPlace(element, make, parent);
  const auto show = [place, shown] { place->setVisible(shown()); };
  watchWhile(*place, element, show);
  show();
  return place;
}

}  // namespace zephon
