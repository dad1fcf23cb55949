#pragma once

#include "screen/tree.h"

class QWidget;

namespace zephon {

// Draws the tree, which must outlive the widget. It can be walked by the keyboard; what the tree selects is
// selected, opened and brought into view.
QWidget* drawTree(Tree& element, QWidget* parent);

}  // namespace zephon
