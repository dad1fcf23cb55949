#include "window/accessible.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace zephon {
namespace {

constexpr const char* kRole = "accessibleRole";

class RoleOnly : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
};

// Asked before Qt's own; nothing leaves the widget to them.
QAccessibleInterface* makeRoleOnly(const QString& /*className*/, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  const QVariant role = widget ? widget->property(kRole) : QVariant();
  return role.isValid() ? new RoleOnly(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

}  // namespace

void giveRole(QWidget& widget, QAccessible::Role role) {
  static const bool installed = [] {
    QAccessible::installFactory(makeRoleOnly);
    return true;
  }();
  static_cast<void>(installed);
  widget.setProperty(kRole, static_cast<int>(role));
}

}  // namespace zephon
