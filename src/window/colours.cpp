#include "window/colours.h"

#include <array>

namespace zephon {
namespace {

struct Variants {
  QRgb light;
  QRgb dark;
};

// In the order of Tone. Good, Caution and Alarm keep 3:1 against the card's ground.
constexpr std::array<Variants, 3> kSignals{{
    {0xff1b7f3b, 0xff4cc26e},
    {0xffb26a00, 0xfff0b429},
    {0xffc62828, 0xffff6b62},
}};

}  // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor mixed(const QColor& from, const QColor& to, double share) {
  const auto part = [share](float a, float b) { return a + static_cast<float>(share) * (b - a); };
  return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                          part(from.blueF(), to.blueF()));
}

QColor tone(Tone tone, const QPalette& palette) {
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

QColor fromColour(Colour colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

QColor textColour(Colour colour, const QPalette& palette) {
  if (colour == kBlack) return palette.color(QPalette::Active, QPalette::Text);
  if (colour == kWhite) return tone(Tone::Muted, palette);
  return fromColour(colour);
}

}  // namespace zephon
