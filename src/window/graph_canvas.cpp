#include "window/graph_canvas.h"

#include <algorithm>

#include "window/bindings.h"
#include "window/colours.h"
#include "window/graph_axes.h"

namespace zephon {
namespace {

constexpr std::size_t kTitled = 3;  // so many axes have titles; of more there is room for the units
constexpr int kTitledWidth = 520;   // pixels of a graph whose axes have titles
constexpr int kPlotsWidth = 200;    // pixels that the plots keep before a further axis is drawn
constexpr int kAxisMarks = 10;      // pixels of an axis beside its numbers
constexpr int kPixelsAMoment = 90;  // between two dates on an axis
constexpr int kPixelsANumber = 45;
constexpr double kSmall = 0.88;  // of the letters, on many axes

}  // namespace

GraphCanvas::GraphCanvas(Graph& element, QWidget* parent) : QCustomPlot(parent), element_(element) {
  setFocusPolicy(Qt::NoFocus);  // the keys are the view's
  setInteractions(QCP::Interactions());
  setMouseTracking(true);
  setAttribute(Qt::WA_NoMousePropagation, false);  // the menu is the view's too
  layer(QStringLiteral("overlay"))->setMode(QCPLayer::lmLogical);
  build();
}

void GraphCanvas::buildAxes() {
  QCPAxisRect& box = *axisRect();
  for (const auto type : {QCPAxis::atLeft, QCPAxis::atRight}) {
    for (auto* axis : box.axes(type)) box.removeAxis(axis);
  }
  axes_.clear();
  const std::size_t count = element_.axes().size();
  for (std::size_t i = 0; i < count; ++i) {
    const bool left = 2 * i < count;
    YAxis made{box.addAxis(left ? QCPAxis::atLeft : QCPAxis::atRight), QSharedPointer<UnitTicker>::create()};
    made.axis->setTicker(made.ticker);
    axes_.push_back(made);
  }
  if (count == 0) box.addAxis(QCPAxis::atLeft)->setVisible(false);  // the levels need one
}

void GraphCanvas::build() {
  picture_ = element_.picture();
  drag_.reset();
  cursors_.clear();
  lines_.clear();
  clearPlottables();
  buildAxes();
  for (std::size_t i = 0; i < element_.plots().size(); ++i) {
    lines_.push_back(new PlotLine(*xAxis, axisOf(i), i));  // NOLINT(cppcoreguidelines-owning-memory)
  }
  for (std::size_t i = 0; i < element_.cursors().size(); ++i) {
    cursors_.push_back(std::make_unique<CursorLine>(*this, static_cast<int>(i)));
  }
  active_ = 0;
  span_ = Span::All;
  dressUp();
}

// The axis of a plot; without one, that of the first visible plot.
QCPAxis& GraphCanvas::axisOf(std::optional<std::size_t> plot) const {
  const auto& plots = element_.plots();
  if (!plot || *plot >= plots.size()) {
    const auto seen = std::find_if(plots.begin(), plots.end(), [](const auto& one) { return one.visible; });
    if (seen != plots.end()) plot = static_cast<std::size_t>(seen - plots.begin());
  }
  if (plot && *plot < plots.size() && plots[*plot].axis < axes_.size()) return *axes_[plots[*plot].axis].axis;
  return axes_.empty() ? *axisRect()->axes(QCPAxis::atLeft).constFirst() : *axes_.front().axis;
}

void GraphCanvas::letGo() {
  const auto& plots = element_.plots();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const bool stands = picture_ == element_.picture() && lines_[i]->data() == plots[i].data;
    if (stands) continue;
    lines_[i]->setData(nullptr);
    letGo_ = true;
  }
}

void GraphCanvas::follow() {
  if (picture_ != element_.picture()) build();
  letGo_ = false;
  followLines();
  followX();
  titleAxes();
  takeRanges();
  if (!element_.viewPaused()) fitRanges();
  followCursors();
  followMarks();
  replot(QCustomPlot::rpQueuedRefresh);
}

void GraphCanvas::followLines() {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Graph::Plot& plot = element_.plots()[i];
    if (lines_[i]->data() != plot.data) lines_[i]->setData(plot.data);
    if (!element_.viewPaused() || lines_[i]->empty()) lines_[i]->grow();
    lines_[i]->setVisible(plot.visible);
  }
}

void GraphCanvas::followX() {
  const bool dates = element_.xKind() == Graph::XKind::Date;
  numbers_->setDivision(element_.xDivision());
  xAxis->setTicker(dates ? QSharedPointer<QCPAxisTicker>(dates_) : numbers_);
  const int apart = dates ? kPixelsAMoment : kPixelsANumber * 2;
  xAxis->ticker()->setTickCount(std::clamp(axisRect()->width() / apart, 2, 8));
  xAxis->setLabel(toQt(element_.xTitle()));
}

// Many axes have no room for titles: then the unit stands above the topmost number.
void GraphCanvas::titleAxes() {
  if (picture_ != element_.picture()) return;  // the next drawing will
  const auto& axes = element_.axes();
  const auto visible = static_cast<std::size_t>(
      std::count_if(axes.begin(), axes.end(), [](const auto& a) { return a.visible; }));
  const bool titled = visible <= kTitled && width() >= kTitledWidth;
  const int ticks = std::clamp(axisRect()->height() / kPixelsANumber, 2, 8);
  QFont letters = font();
  if (!titled) letters.setPointSizeF(letters.pointSizeF() * kSmall);
  const int each = QFontMetrics(letters).horizontalAdvance(QStringLiteral("0000.00")) + kAxisMarks;
  int fitting = std::max(1, (width() - kPlotsWidth) / each);
  bool grid = true;  // the first visible axis alone draws one
  for (std::size_t i = 0; i < axes_.size(); ++i) {
    YAxis& one = axes_[i];
    const auto& plots = element_.plots();
    const auto on = std::find_if(plots.begin(), plots.end(),
                                 [i](const Graph::Plot& plot) { return plot.axis == i && plot.visible; });
    const bool plotted = on != plots.end();
    const QString title = toQt(axes[i].title);
    const QString unit = plotted && !on->unit.empty() ? toQt(on->unit) : title;
    one.axis->setVisible(axes[i].visible && fitting-- > 0);
    one.axis->setLabel(titled ? title : QString());
    one.ticker->setUnit(titled ? QString() : unit);
    one.ticker->setTickCount(ticks);
    one.ticker->setDivision(axes[i].division);
    const QColor text = palette().color(QPalette::Active, QPalette::Text);
    const QColor ink = plotted && visible > 1
                           ? plotStyle(static_cast<std::size_t>(on - plots.begin()), palette()).ink
                           : text;
    dress(*one.axis, letters, palette(), ink, grid && axes[i].visible);
    one.axis->setPadding(titled ? 5 : 1);
    one.axis->setTickLabelPadding(titled ? 5 : 2);
    if (axes[i].visible) grid = false;
  }
}

void GraphCanvas::followCursors() {
  if (picture_ != element_.picture()) return;
  const QColor ink = palette().color(QPalette::Active, QPalette::Text);
  for (std::size_t i = 0; i < std::min(cursors_.size(), element_.cursors().size()); ++i) {
    const Graph::Cursor& cursor = element_.cursors()[i];
    const bool active = cursors_.size() > 1 && activeCursor() == i;
    cursors_[i]->show(cursor, axisOf(cursor.plot), ink, active);
  }
}

void GraphCanvas::followMarks() {
  if (markings_ == element_.markings()) return;
  markings_ = element_.markings();
  const std::vector<double>& marks = element_.marks();
  marks_.set(marks);
  if (!marks.empty()) reveal(marks.front());
}

void GraphCanvas::dressUp() {
  setBackground(QBrush(tone(Tone::Card, palette())));
  const QColor text = palette().color(QPalette::Active, QPalette::Text);
  dress(*xAxis, font(), palette(), text, true);
  axisRect()->setMinimumMargins(QMargins(4, fontMetrics().height() * 3 / 2, 4, 4));
  for (std::size_t i = 0; i < lines_.size(); ++i) lines_[i]->setStyle(plotStyle(i, palette()));
  titleAxes();
  followCursors();
  replot(QCustomPlot::rpQueuedReplot);
}

void GraphCanvas::resizeEvent(QResizeEvent* event) {
  QCustomPlot::resizeEvent(event);
  followX();
  titleAxes();
  replot(QCustomPlot::rpQueuedReplot);
}

}  // namespace zephon
