#include "window/colours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zephon {
namespace {

struct Variants {
  QRgb light;
  QRgb dark;
};

// In the order of Tone.
constexpr std::array<Variants, 3> kSignals{{
    {0xff177438, 0xff52c874},
    {0xff8f5500, 0xfff0b429},
    {0xffc62828, 0xffff8a83},
}};

// The zones are marks and words; a lamp of theirs stands on a button that is on.
constexpr InkRule kInkRules[] = {{Tone::Good, kTextContrast, kShapeContrast},
                                 {Tone::Caution, kTextContrast, kShapeContrast},
                                 {Tone::Alarm, kTextContrast, kShapeContrast},
                                 {Tone::Muted, kTextContrast, 0},
                                 {Tone::Focus, kShapeContrast, kShapeContrast}};

double luminance(const QColor& colour) {
  const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

// The colour as it is chosen, before it is held to its rule.
QColor plainTone(Tone tone, const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Active, QPalette::Window);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  switch (tone) {
    case Tone::Good:
    case Tone::Caution:
    case Tone::Alarm: {
      const Variants& pair = kSignals.at(static_cast<std::size_t>(tone));
      return isDark(palette) ? pair.dark : pair.light;
    }
    case Tone::Muted:
      return mixed(text, ground, 0.36);
    case Tone::Focus:
      return palette.color(QPalette::Active, QPalette::Highlight);
    case Tone::Line:
      return mixed(ground, text, 0.22);
    case Tone::Track:
      return mixed(isDark(palette) ? ground : base, text, 0.14);
    case Tone::Card:
      return isDark(palette) ? mixed(ground, text, 0.05) : base;
    case Tone::Selected:
      return mixed(ground, palette.color(QPalette::Active, QPalette::Highlight), 0.22);
  }
  return text;
}

QColor heldTo(const QColor& wanted, const QPalette& palette, double onPlain, double onSelected) {
  constexpr int kSteps = 20;
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const std::vector<QColor> grounds = plainGrounds(palette);
  for (int step = 0; step < kSteps; ++step) {
    const QColor ink = mixed(wanted, text, static_cast<double>(step) / kSteps);
    const bool plain = std::all_of(grounds.begin(), grounds.end(),
                                   [&](const QColor& ground) { return contrast(ink, ground) >= onPlain; });
    if (plain && contrast(ink, plainTone(Tone::Selected, palette)) >= onSelected) return ink;
  }
  return text;
}

QColor fromColour(Colour colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

}  // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor mixed(const QColor& from, const QColor& to, double share) {
  const auto part = [share](float a, float b) { return a + static_cast<float>(share) * (b - a); };
  return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                          part(from.blueF(), to.blueF()));
}

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one) + 0.05, luminance(other) + 0.05});
  return lighter / darker;
}

std::span<const InkRule> inkRules() {
  return kInkRules;
}

std::vector<QColor> plainGrounds(const QPalette& palette) {
  return {palette.color(QPalette::Active, QPalette::Window), palette.color(QPalette::Active, QPalette::Base),
          palette.color(QPalette::Active, QPalette::Button), plainTone(Tone::Card, palette)};
}

QColor tone(Tone tone, const QPalette& palette) {
  const auto* const rule = std::find_if(std::begin(kInkRules), std::end(kInkRules),
                                        [tone](const InkRule& one) { return one.ink == tone; });
  const QColor chosen = plainTone(tone, palette);
  return rule == std::end(kInkRules) ? chosen : heldTo(chosen, palette, rule->onPlain, rule->onSelected);
}

QColor standingOut(const QColor& wanted, const QPalette& palette, double least) {
  return heldTo(wanted, palette, least, 0);
}

QColor shapeColour(Colour colour, const QPalette& palette) {
  return standingOut(fromColour(colour), palette, kShapeContrast);
}

QColor textColour(Colour colour, const QPalette& palette) {
  if (colour == kBlack) return palette.color(QPalette::Active, QPalette::Text);
  if (colour == kWhite) return tone(Tone::Muted, palette);
  return standingOut(fromColour(colour), palette, kTextContrast);
}

}  // namespace zephon
