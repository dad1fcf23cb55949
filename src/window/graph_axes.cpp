#include "window/graph_axes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "protocol/day_serial.h"
#include "window/bindings.h"
#include "window/colours.h"

namespace zephon {
namespace {

constexpr double kSecond = 1.0 / 86400;
constexpr double kMinute = 1.0 / 1440;
constexpr double kHour = 1.0 / 24;

constexpr std::array kSteps{kSecond,     2 * kSecond, 5 * kSecond,  10 * kSecond, 30 * kSecond, kMinute,
                            2 * kMinute, 5 * kMinute, 10 * kMinute, 30 * kMinute, kHour,        2 * kHour,
                            3 * kHour,   6 * kHour,   12 * kHour,   1.0,          2.0,          7.0,
                            14.0,        30.0,        60.0,         90.0,         180.0,        365.0};

struct Stroke {
  QRgb light;
  QRgb dark;
  QCPScatterStyle::ScatterShape symbol;
  const char16_t* text;
};

// Neighbours differ in lightness too.
constexpr std::array<Stroke, kPlotStyles> kStrokes{{
    {0xff0b5cad, 0xff6cb6ff, QCPScatterStyle::ssDisc, u"●"},
    {0xffd1453b, 0xffffa198, QCPScatterStyle::ssTriangle, u"△"},
    {0xff14602c, 0xff56d364, QCPScatterStyle::ssSquare, u"□"},
    {0xff8a63d2, 0xffd2a8ff, QCPScatterStyle::ssDiamond, u"◇"},
    {0xff7a4f00, 0xffe3b341, QCPScatterStyle::ssTriangleInverted, u"▽"},
    {0xff0a8a94, 0xff39c5cf, QCPScatterStyle::ssPlus, u"+"},
    {0xff8c1d64, 0xfff778ba, QCPScatterStyle::ssCross, u"×"},
    {0xff6e7781, 0xffcdd9e5, QCPScatterStyle::ssCircle, u"○"},
}};

}  // namespace

double SerialTicker::getTickStep(const QCPRange& range) {
  const double wanted = range.size() / std::max(1, tickCount());
  const auto found = std::lower_bound(kSteps.begin(), kSteps.end(), wanted);
  step_ = found != kSteps.end() ? *found : std::ceil(wanted / kSteps.back()) * kSteps.back();
  return step_;
}

QString SerialTicker::getTickLabel(double tick, const QLocale& /*locale*/, QChar /*format*/,
                                   int /*precision*/) {
  if (step_ >= 1) return toQt(dateSerialText(tick, "mm/dd/yyyy"));
  const std::string time = dateSerialText(tick, step_ < kMinute ? "hh:nn:ss" : "hh:nn");
  return toQt(time + "\n" + dateSerialText(tick, "mm/dd/yyyy"));
}

double DivisionTicker::getTickStep(const QCPRange& range) {
  if (division_ <= 0) return QCPAxisTicker::getTickStep(range);
  constexpr double kLeast = 2;
  const double most = 3.0 * tickCount();
  const double divisions = std::max(range.size() / division_, 1e-12);
  if (divisions > most) return division_ * std::exp2(std::ceil(std::log2(divisions / most)));
  if (divisions < kLeast) return division_ * std::exp2(std::floor(std::log2(divisions / kLeast)));
  return division_;
}

// The lines above and below the number keep it at its mark.
QVector<QString> UnitTicker::createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                               QChar format, int precision) {
  QVector<QString> labels = QCPAxisTicker::createLabelVector(ticks, locale, format, precision);
  if (!labels.isEmpty() && !unit_.isEmpty())
    labels.back() = QStringLiteral("%1\n%2\n ").arg(unit_, labels.back());
  return labels;
}

PlotStyle plotStyle(std::size_t number, const QPalette& palette) {
  const Stroke& stroke = kStrokes.at(number % kStrokes.size());
  const QColor colour(isDark(palette) ? stroke.dark : stroke.light);
  return {standingOut(colour, palette, kShapeContrast), standingOut(colour, palette, kTextContrast),
          stroke.symbol};
}

QString symbolText(std::size_t number) {
  return QString::fromUtf16(kStrokes.at(number % kStrokes.size()).text);
}

void dress(QCPAxis& axis, const QFont& font, const QPalette& palette, const QColor& ink, bool grid) {
  const QPen line(tone(Tone::Muted, palette));
  axis.setBasePen(line);
  axis.setTickPen(line);
  axis.setSubTickPen(line);
  axis.setTickLabelColor(ink);
  axis.setLabelColor(ink);
  axis.setTickLabelFont(font);
  axis.setLabelFont(font);
  axis.setNumberFormat(QStringLiteral("g"));
  axis.grid()->setVisible(grid);
  axis.grid()->setPen(QPen(tone(Tone::Line, palette), 1, Qt::DotLine));
  axis.grid()->setZeroLinePen(QPen(tone(Tone::Line, palette)));
}

QCPRange roomy(const QCPRange& range, double share, double least) {
  if (!std::isfinite(range.lower) || !std::isfinite(range.upper)) return {0, 1};
  double width = range.size() * (1 + 2 * share);
  const double lies = std::max(std::abs(range.lower), std::abs(range.upper));
  width = std::max(width, lies > 0 ? lies * least : 1.0);
  const QCPRange wider(range.center() - width / 2, range.center() + width / 2);
  return QCPRange::validRange(wider) ? wider : QCPRange(0, 1);
}

}  // namespace zephon
