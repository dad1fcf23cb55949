#pragma once

#include <QWidget>
#include <functional>

#include "screen/element.h"

namespace zephon {

// A page's place for an element that several pages show. A window has one widget of it: it is made when it is
// first seen, and stands in whichever place is on screen. The place is there while `shown` says so, which is
// asked after every change of the element.
QWidget* sharedPlace(Element& element, const std::function<QWidget*(QWidget* parent)>& make,
                     const std::function<bool()>& shown, QWidget* parent);

}  // namespace zephon
