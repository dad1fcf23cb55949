#include "window/graph_commands.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "window/graph_canvas.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr double kPan = 0.1;
constexpr double kZoom = 0.8;
constexpr double kSlide = 0.05;

using Canvas = GraphCanvas;
constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

void showAll(Canvas& canvas, Graph& /*element*/) {
  canvas.show(Canvas::Span::All);
}
void showLastHour(Canvas& canvas, Graph& /*element*/) {
  canvas.show(canvas.span() == Canvas::Span::LastHour ? Canvas::Span::All : Canvas::Span::LastHour);
}
void pause(Canvas& /*canvas*/, Graph& element) {
  element.pauseView(!element.viewPaused());
}
void zoomIn(Canvas& canvas, Graph& /*element*/) {
  canvas.zoomTime(kZoom);
}
void zoomOut(Canvas& canvas, Graph& /*element*/) {
  canvas.zoomTime(1 / kZoom);
}
void zoomValuesIn(Canvas& canvas, Graph& /*element*/) {
  canvas.zoomValues(kZoom);
}
void zoomValuesOut(Canvas& canvas, Graph& /*element*/) {
  canvas.zoomValues(1 / kZoom);
}
bool isLastHour(const Canvas& canvas, const Graph& /*element*/) {
  return canvas.span() == Canvas::Span::LastHour;
}
bool isPaused(const Canvas& /*canvas*/, const Graph& element) {
  return element.viewPaused();
}

// The first of a command's keys stands in the menu.
const std::array kCommands{
    GraphCommand{&words::kShowAll, Qt::Key_F, showAll},
    GraphCommand{nullptr, Qt::Key_Home, showAll},
    GraphCommand{&words::kLastHour, Qt::Key_L, showLastHour, isLastHour, true},
    GraphCommand{&words::kPauseView, Qt::Key_P, pause, isPaused, true},
    GraphCommand{&words::kZoomIn, Qt::Key_Plus, zoomIn},
    GraphCommand{nullptr, Qt::Key_Equal, zoomIn},
    GraphCommand{&words::kZoomOut, Qt::Key_Minus, zoomOut},
    GraphCommand{&words::kZoomValuesIn, kCtrl | Qt::Key_Plus, zoomValuesIn},
    GraphCommand{nullptr, kCtrl | Qt::Key_Equal, zoomValuesIn},
    GraphCommand{&words::kZoomValuesOut, kCtrl | Qt::Key_Minus, zoomValuesOut},
    GraphCommand{nullptr, Qt::Key_Left, [](Canvas& c, Graph&) { c.pan(-kPan, 0); }},
    GraphCommand{nullptr, Qt::Key_Right, [](Canvas& c, Graph&) { c.pan(kPan, 0); }},
    GraphCommand{nullptr, Qt::Key_Up, [](Canvas& c, Graph&) { c.pan(0, kPan); }},
    GraphCommand{nullptr, Qt::Key_Down, [](Canvas& c, Graph&) { c.pan(0, -kPan); }},
    GraphCommand{&words::kNextCursor, Qt::Key_C, [](Canvas& c, Graph&) { c.nextCursor(); }},
    GraphCommand{&words::kCursorForward, kCtrl | Qt::Key_Right, [](Canvas& c, Graph&) { c.stepCursor(1); }},
    GraphCommand{&words::kCursorBack, kCtrl | Qt::Key_Left, [](Canvas& c, Graph&) { c.stepCursor(-1); }},
    GraphCommand{nullptr, kCtrlShift | Qt::Key_Right, [](Canvas& c, Graph&) { c.slideCursor(kSlide); }},
    GraphCommand{nullptr, kCtrlShift | Qt::Key_Left, [](Canvas& c, Graph&) { c.slideCursor(-kSlide); }},
    GraphCommand{&words::kCursorUp, kCtrl | Qt::Key_Up, [](Canvas& c, Graph&) { c.raiseCursor(1); }},
    GraphCommand{nullptr, kCtrl | Qt::Key_Down, [](Canvas& c, Graph&) { c.raiseCursor(-1); }},
};

// A plus may need the shift key, and either may be on the number pad.
bool isKey(QKeyCombination key, const QKeyEvent& event) {
  Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Plus || key.key() == Qt::Key_Equal) held &= ~Qt::ShiftModifier;
  return key.key() == event.key() && key.keyboardModifiers() == held;
}

}  // namespace

std::span<const GraphCommand> graphCommands() {
  return kCommands;
}

bool applies(const GraphCommand& command, const Graph& element) {
  return !command.datesOnly || element.xKind() == Graph::XKind::Date;
}

bool runGraphKey(const QKeyEvent& event, GraphCanvas& canvas, Graph& element) {
  const auto* const found = std::find_if(kCommands.begin(), kCommands.end(), [&](const GraphCommand& one) {
    return isKey(one.key, event) && applies(one, element);
  });
  if (found == kCommands.end()) return false;
  canvas.catchUp();
  found->run(canvas, element);
  return true;
}

}  // namespace zephon
