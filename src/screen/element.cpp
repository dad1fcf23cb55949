#include "screen/element.h"

#include <algorithm>

namespace zephon {

Element* ElementList::find(const std::string& name) const {
  const auto found =
      std::find_if(all_.begin(), all_.end(), [&](const Element* e) { return e->name() == name; });
  return found == all_.end() ? nullptr : *found;
}

Element::WatchId Element::watch(Watcher watcher) {
  watchers_.emplace(++lastWatch_, std::move(watcher));
  return lastWatch_;
}

void Element::unwatch(WatchId id) {
  watchers_.erase(id);
}

void Element::changed() {
  const auto watchers = watchers_;  // a watcher may take itself off
  for (const auto& [id, watcher] : watchers) watcher();
}

}  // namespace zephon
