#include "expert/rules.h"

#include <algorithm>
#include <iterator>

namespace zephon {
namespace {

RowNumbers together(const RowNumbers& a, const RowNumbers& b) {
  if (a.empty() || a == b) return b;
  RowNumbers both;
  both.reserve(std::max(a.size(), b.size()));
  std::set_union(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both));
  return both;
}

void raise(Analysis& found, const Slots& slots, const RowNumbers& rows) {
  for (const int finding : slots) {
    const auto slot = static_cast<std::size_t>(finding);
    found.flags[slot] = true;
    found.rows[slot] = together(found.rows[slot], rows);
  }
}

// False when the rule failed.
bool ask(const Rule& rule, const Pass& pass, Analysis& found) {
  bool good = true;
  for (const Outcome& outcome : rule.outcomes) {
    Seen seen = outcome.when(pass);
    if (seen.holds) raise(found, outcome.findings, seen.rows);
    for (auto& [slot, text] : seen.texts) found.texts[slot] = std::move(text);
    good = good && !seen.failed;
  }
  return good;
}

}  // namespace

Analysis askRules(const std::vector<Rule>& rules, const Pass& pass) {
  Analysis found;
  if (pass.log.rows() == 0) return found;
  for (const Rule& rule : rules) {
    const bool applies = !rule.applies || rule.applies(pass.device);
    if (applies && !ask(rule, pass, found)) break;
  }
  return found;
}

}  // namespace zephon
