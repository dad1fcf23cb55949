#pragma once

#include <QKeySequence>
#include <span>

#include "form/words.h"
#include "screen/graph.h"

class QKeyEvent;

namespace zephon {

class GraphCanvas;

// What a user can do with a graph by a key or from its menu.
struct GraphCommand {
  const Word* word;  // in the menu; none for a key alone
  QKeyCombination key;
  void (*run)(GraphCanvas& canvas, Graph& element);
  bool (*checked)(const GraphCanvas& canvas, const Graph& element) = nullptr;  // for a switch
  bool datesOnly = false;
};

std::span<const GraphCommand> graphCommands();
bool applies(const GraphCommand& command, const Graph& element);

// Runs the command of the key; false when it has none.
bool runGraphKey(const QKeyEvent& event, GraphCanvas& canvas, Graph& element);

}  // namespace zephon
