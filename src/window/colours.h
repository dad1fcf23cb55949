#pragma once

#include <QColor>
#include <QPalette>

#include "screen/colour.h"

namespace zephon {

// The few colours that are not the desktop's own, each with a light and a dark variant.
enum class Tone {
  Good,     // within limits
  Caution,  // near a limit
  Alarm,    // outside the limits
  Muted,    // secondary text, what is off or not live
  Line,     // thin borders and scale marks
  Track,    // the empty part of a bar
  Card,     // ground of a group of controls
  Selected  // ground of the page that is open, of a button that is on
};

QColor tone(Tone tone, const QPalette& palette);
bool isDark(const QPalette& palette);
QColor mixed(const QColor& from, const QColor& to, double share);  // share 0 is `from`, 1 is `to`

// An element's colour value as it stands.
QColor fromColour(Colour colour);
// An element's text colour on the desktop's ground: black is the ordinary text, white the faded one.
QColor textColour(Colour colour, const QPalette& palette);

}  // namespace zephon
