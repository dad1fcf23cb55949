#include "logs/history_tree.h"

#include "form/dictionary.h"
#include "logs/history_log.h"
#include "text/picture.h"

namespace zephon {
namespace {

struct Value {
  int key;
  std::size_t column;
  const char* unit;
};

constexpr std::array<Value, 6> kValues = {{{82, 6, " (W)"},
                                           {83, 7, " (W)"},
                                           {84, 8, " (VRMS)"},
                                           {85, 9, " (VRMS)"},
                                           {86, 10, " (VRMS)"},
                                           {87, 11, " (ARMS)"}}};

}  // namespace

HistoryTree::HistoryTree(const LogTable<12>& history, std::span<const std::string> dict)
    : DatedTree(dateGroups(history, historyRecords(history)), kValues.size(), dict), history_(history) {}

std::string HistoryTree::rowText(std::size_t row) const {
  return timeOfDay(history_[row]) + " - " + timeOfDay(history_[row + 1]);
}

std::string HistoryTree::leafText(std::size_t row, std::size_t leaf) const {
  const Value& value = kValues[leaf];
  return dictText(dict(), value.key) + ' ' + shortestText(history_[row][value.column]) + value.unit;
}

Colour HistoryTree::rowColour(std::size_t) const {
  return kBlack;
}

}  // namespace zephon
