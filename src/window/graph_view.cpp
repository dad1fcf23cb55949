#include "window/graph_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "window/accessible.h"
#include "window/bindings.h"
#include "window/colours.h"
#include "window/graph_axes.h"
#include "window/graph_canvas.h"
#include "window/graph_commands.h"
#include "window/graph_picture.h"
#include "window/shared_place.h"
#include "window/words.h"

namespace zephon {
namespace {

class GraphView : public QWidget {
 public:
  GraphView(Graph& element, QWidget* parent)
      : QWidget(parent),
        element_(element),
        readings_(new QLabel(this)),
        canvas_(new GraphCanvas(element, this)) {
    setObjectName(toQt(element.name()));
    giveRole(*this, QAccessible::Chart);
    nameBy(*this, words::kGraph);
    whileSpoken(*this, [this] { tell(); });
    setFocusPolicy(Qt::StrongFocus);
    canvas_->setObjectName(QStringLiteral("canvas"));
    giveRole(*canvas_, QAccessible::Canvas);
    nameBy(*canvas_, words::kGraph);
    readings_->setObjectName(QStringLiteral("readings"));
    readings_->setTextFormat(Qt::RichText);
    readings_->setWordWrap(true);
    readings_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3, 3, 3, 3);
    column->setSpacing(2);
    column->addWidget(readings_);
    column->addWidget(canvas_, 1);
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, [this] { drawNow(); });
    watchWhile(*this, element, [this] { follow(); });
    follow();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!runGraphKey(*event, *canvas_, element_)) QWidget::keyPressEvent(event);
  }
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* /*event*/) override { drawSoon(); }
  void resizeEvent(QResizeEvent* /*event*/) override { keepRoom(true); }
  void focusInEvent(QFocusEvent* /*event*/) override { update(); }
  void focusOutEvent(QFocusEvent* /*event*/) override { update(); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow();
  void drawSoon();
  void drawNow();
  QString legend() const;
  QString range(std::size_t plot) const;
  void tell();
  void keepRoom(bool anew);

  Graph& element_;
  QLabel* readings_;
  GraphCanvas* canvas_;
  std::uint64_t picture_ = 0;
  QTimer soon_;
};

// What is shown at once is only whether; the drawing waits for the rest of the changes.
void GraphView::follow() {
  canvas_->letGo();
  followCommon(*this, element_);
  drawSoon();
}

void GraphView::drawSoon() {
  if (isVisible() && !soon_.isActive()) soon_.start(0);
}

void GraphView::drawNow() {
  if (!isVisible()) return;
  canvas_->follow();
  readings_->setText(legend());
  tell();
  keepRoom(std::exchange(picture_, element_.picture()) != element_.picture());
}

QString GraphView::legend() const {
  QStringList parts;
  if (element_.viewPaused()) parts += QStringLiteral("<b>%1</b>").arg(say(words::kPaused));
  for (std::size_t i = 0; i < element_.plots().size(); ++i) {
    const Graph::Plot& plot = element_.plots()[i];
    if (!plot.visible) continue;
    QString text = toQt(plot.legend).toHtmlEscaped();
    text.replace(QLatin1Char('-'), QChar(0x2011));  // no line ends at it
    if (!plot.annotation.empty())
      text += QStringLiteral(": <b>%1</b>").arg(toQt(plot.annotation).toHtmlEscaped());
    parts +=
        QStringLiteral("<span style=\"white-space:nowrap\"><span style=\"color:%1\">%2</span>&nbsp;%3</span>")
            .arg(plotStyle(i, palette()).colour.name(), symbolText(i), text);
  }
  return parts.join(QStringLiteral(" &nbsp; "));
}

// From the least to the greatest value of a plot.
QString GraphView::range(std::size_t plot) const {
  bool found = false;
  const QCPRange values = plot < canvas_->lines() ? canvas_->line(plot).getValueRange(found) : QCPRange();
  if (!found) return {};
  const QString text =
      QStringLiteral("%1 \u2013 %2 %3").arg(values.lower, 0, 'g', 4).arg(values.upper, 0, 'g', 4);
  return text.arg(toQt(element_.plots()[plot].unit)).trimmed();
}

// What a screen reader hears of the plots: the value that stands above them, else where they lie.
void GraphView::tell() {
  QString text;
  for (std::size_t i = 0; i < element_.plots().size(); ++i) {
    const Graph::Plot& plot = element_.plots()[i];
    if (!plot.visible) continue;
    const QString value = plot.annotation.empty() ? range(i) : toQt(plot.annotation);
    text += QStringLiteral("%1: %2. ").arg(toQt(plot.legend), value);
  }
  setAccessibleDescription(text + say(words::kGraphKeys));
}

// A line that a longer reading needs stays, lest the graph jump: a label never asks for less than its least.
void GraphView::keepRoom(bool anew) {
  if (anew) readings_->setMinimumHeight(0);
  readings_->setMinimumHeight(std::max(readings_->heightForWidth(width() - 6), 0));
}

void GraphView::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const GraphCommand& command : graphCommands()) {
    if (!command.word || !applies(command, element_)) continue;
    QAction* action = menu->addAction(say(*command.word) + QLatin1Char('\t') +
                                      QKeySequence(command.key).toString(QKeySequence::NativeText));
    action->setCheckable(command.checked);
    if (command.checked) action->setChecked(command.checked(*canvas_, element_));
    connect(action, &QAction::triggered, this, [this, run = command.run] {
      canvas_->catchUp();
      run(*canvas_, element_);
    });
  }
  menu->addSeparator();
  connect(menu->addAction(say(words::kSavePicture)), &QAction::triggered, this,
          [this] { savePicture(*this, *canvas_, legend()); });
  connect(menu->addAction(say(words::kCopyPicture)), &QAction::triggered, this, [this] {
    QApplication::clipboard()->setImage(QImage::fromData(pngOf(*canvas_, legend()), "PNG"));
  });
  menu->popup(event->globalPos());
}

void GraphView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
  canvas_->dressUp();
  drawSoon();
}

void GraphView::paintEvent(QPaintEvent* /*event*/) {
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(tone(Tone::Focus, palette()), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace

QWidget* drawGraph(Graph& element, QWidget* parent) {
  return new GraphView(element, parent);
}

QWidget* graphPlace(Graph& element, QWidget* parent) {
  return sharedPlace(
      element, [&element](QWidget* place) { return drawGraph(element, place); },
      [&element] { return element.visible() && !element.plots().empty(); }, parent);
}

}  // namespace zephon
