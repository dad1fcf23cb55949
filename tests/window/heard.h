#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QWidget>
#include <string>

namespace zephon::testing_support {

inline std::string describe(QAccessibleInterface& node) {
  const QObject* object = node.object();
  return (object ? object->metaObject()->className() + (" " + object->objectName().toStdString()) : "?") +
         " role " + std::to_string(node.role()) + " \"" + node.text(QAccessible::Name).toStdString() + '"';
}

// A screen reader comes to what can be used, and of our own window to what lies innermost: each must say
// what it is. A scroll bar is named by what it scrolls; the rows of a tree or a list are not looked at.
inline void expectNamesAndRoles(QAccessibleInterface* node, const std::string& page, bool own) {
  if (!node || node->state().invisible) return;
  const QString name = node->text(QAccessible::Name);
  const bool shows = own && node->childCount() == 0 && node->role() != QAccessible::ScrollBar;
  const bool blank = node->role() == QAccessible::StaticText && name.isEmpty();
  if (!blank && (shows || node->state().focusable)) {
    EXPECT_FALSE(name.isEmpty()) << page << ": " << describe(*node);
    for (const auto none : {QAccessible::NoRole, QAccessible::Client, QAccessible::Border})
      EXPECT_NE(node->role(), none) << page << ": " << describe(*node);
  }
  for (const auto whole :
       {QAccessible::Tree, QAccessible::List, QAccessible::ComboBox, QAccessible::SpinBox}) {
    if (node->role() == whole) return;
  }
  for (int i = 0; i < node->childCount(); ++i) expectNamesAndRoles(node->child(i), page, own);
}

}  // namespace zephon::testing_support
