#include "window/legend.h"

#include <QObject>

namespace zephon {

QString toQt(const std::string& text) {
  return QString::fromStdString(text);
}

std::string fromQt(const QString& text) {
  return text.toStdString();
}

void watchWhile(QObject& owner, Element& element, const std::function<void()>& watcher) {
  const Element::WatchId id = element.watch(watcher);
  QObject::connect(&owner, &QObject::destroyed, [&element, id] { element.unwatch(id); });
}

QString Legend::now() const {
  if (label) return toQt(label->caption());
  return word.english ? say(word) : text;
}

void followLegend(QObject& owner, const Legend& legend, const std::function<void()>& show) {
  if (legend.label) watchWhile(owner, *legend.label, show);
  legend.word.english ? whileSpoken(owner, show) : show();
}

}  // namespace zephon
