#pragma once

#include "screen/combo.h"

class QWidget;

namespace zephon {

// Draws the findings as lines of text, each as many as it needs; the one that is pressed, or reached by the
// keyboard, is chosen. The element must outlive the widget.
QWidget* drawFindings(Combo& element, QWidget* parent);

// A page's place for them, under the log or the chart that they were found in.
QWidget* findingsPlace(Combo& element, QWidget* parent);

}  // namespace zephon
