#pragma once

#include <QColor>
#include <QPalette>
#include <span>
#include <vector>

#include "screen/colour.h"

namespace zephon {

// The few colours that are not the desktop's own, each with a light and a dark variant.
enum class Tone {
  Good,     // within limits
  Caution,  // near a limit
  Alarm,    // outside the limits
  Muted,    // secondary text, what is off or not live
  Focus,    // ring around what has the keyboard, frame and lamp of what is on
  Line,     // thin borders that only divide
  Track,    // the empty part of a bar
  Card,     // ground of a group of controls
  Selected  // ground of the page that is open, of a button that is on
};

QColor tone(Tone tone, const QPalette& palette);
bool isDark(const QPalette& palette);
QColor mixed(const QColor& from, const QColor& to, double share);  // share 0 is `from`, 1 is `to`

// How far two colours stand apart, 1 to 21, by the Web Content Accessibility Guidelines; and what they ask.
double contrast(const QColor& one, const QColor& other);
inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3;  // marks, lines, rings, large letters

// Which tones are drawn on what, and how far they stand out of it, whatever colours the desktop has.
struct InkRule {
  Tone ink;
  double onPlain;     // on each of plainGrounds()
  double onSelected;  // on Tone::Selected; 0 where it is not drawn
};
std::span<const InkRule> inkRules();
std::vector<QColor> plainGrounds(const QPalette& palette);

// The colour, with as much of the text's in it as it needs to stand out of every plain ground.
QColor standingOut(const QColor& wanted, const QPalette& palette, double least);

// An element's colour as a shape or as text on the desktop's grounds. As text, black is the ordinary one and
// white the faded one.
QColor shapeColour(Colour colour, const QPalette& palette);
QColor textColour(Colour colour, const QPalette& palette);

}  // namespace zephon
