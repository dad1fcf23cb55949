#pragma once

#include "form/main.h"

class QWidget;

namespace zephon {

// The pages, each drawn by a file of its own. A panel only draws its elements; whether it is the page on
// screen is the window's business.
QWidget* measurementPanel(Main& main, QWidget* parent);
QWidget* setupPanel(Main& main, QWidget* parent);
QWidget* outletsPanel(Main& main, QWidget* parent);
QWidget* comPanel(Main& main, QWidget* parent);
QWidget* dataPanel(Main& main, QWidget* parent);
QWidget* chartPanel(Main& main, QWidget* parent);
QWidget* scopePanel(Main& main, QWidget* parent);
QWidget* startPanel(Main& main, QWidget* parent);  // stands when no page does

}  // namespace zephon
