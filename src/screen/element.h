#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zephon {

class Element;

// All elements of the form, in the order of their making; the window finds them here by name.
class ElementList {
 public:
  const std::vector<Element*>& all() const { return all_; }
  Element* find(const std::string& name) const;  // nullptr without one of that name

 private:
  friend class Element;
  std::vector<Element*> all_;
};

// A named thing on the screen: a few values and the news of their change. The logic reads and writes elements
// and never knows what draws them. A write that changes nothing notifies nobody.
class Element {
 public:
  using Watcher = std::function<void()>;
  using WatchId = std::uint64_t;

  Element(ElementList& list, std::string name) : name_(std::move(name)) { list.all_.push_back(this); }
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;
  virtual ~Element() = default;

  const std::string& name() const { return name_; }

  bool visible() const { return visible_; }
  void setVisible(bool on) { write(visible_, on); }
  bool enabled() const { return enabled_; }
  void setEnabled(bool on) { write(enabled_, on); }
  const std::string& tooltip() const { return tooltip_; }
  void setTooltip(std::string text) { write(tooltip_, std::move(text)); }
  // Size of the text in points; 0 leaves it to the window.
  int fontSize() const { return fontSize_; }
  void setFontSize(int points) { write(fontSize_, points); }

  // Runs `watcher` after every change of any value. Watchers draw; they decide nothing.
  WatchId watch(Watcher watcher);
  void unwatch(WatchId id);

 protected:
  // True if the value was another one.
  template <class Value>
  bool write(Value& held, Value wanted) {
    if (held == wanted) return false;
    held = std::move(wanted);
    changed();
    return true;
  }
  void changed();

 private:
  std::string name_;
  bool visible_ = true;
  bool enabled_ = true;
  std::string tooltip_;
  int fontSize_ = 0;
  std::map<WatchId, Watcher> watchers_;
  WatchId lastWatch_ = 0;
};

}  // namespace zephon
