#include "window/findings_list.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>

#include "window/bindings.h"
#include "window/shared_place.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kMostHeight = 170;

class FindingsList : public QListWidget {
 public:
  FindingsList(Combo& element, QWidget* parent) : QListWidget(parent), element_(element) {
    setObjectName(toQt(element.name()));
    nameBy(*this, words::kFindings);
    setWordWrap(true);
    setResizeMode(Adjust);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMaximumHeight(kMostHeight);
    watchWhile(*this, element, [this] { follow(); });
    follow();
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) { element_.choose(row); });
    // A click on the finding that is chosen, or Enter, leads back to its rows, wherever the view has gone since.
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
      if (row(item) == before_ && element_.onClick) element_.onClick();
    });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentRow() >= 0 && element_.onClick) return element_.onClick();
    QListWidget::keyPressEvent(event);
  }
  void mousePressEvent(QMouseEvent* event) override {
    before_ = currentRow();
    QListWidget::mousePressEvent(event);
  }

 private:
  void follow();

  Combo& element_;
  std::vector<std::string> items_;
  int before_ = -1;  // chosen when the mouse was pressed
};

void FindingsList::follow() {
  const QSignalBlocker quiet(this);
  followCommon(*this, element_);
  if (items_ != element_.items()) {
    items_ = element_.items();
    clear();
    for (const std::string& item : items_) addItem(toQt(item));
  }
  setCurrentRow(element_.index());
}

}  // namespace

QWidget* drawFindings(Combo& element, QWidget* parent) {
  return new FindingsList(element, parent);
}

QWidget* findingsPlace(Combo& element, QWidget* parent) {
  return sharedPlace(
      element, [&element](QWidget* place) { return drawFindings(element, place); },
      [&element] { return element.visible() && !element.items().empty(); }, parent);
}

}  // namespace zephon
