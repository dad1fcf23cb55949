#include "window/tree_view.h"

#include <QItemSelection>
#include <QTreeView>
#include <utility>

#include "window/bindings.h"
#include "window/tree_model.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr std::size_t kMostOpened = 200;  // nodes whose branches open when they are selected together

class TreeView : public QTreeView {
 public:
  TreeView(Tree& element, QWidget* parent) : QTreeView(parent), element_(element) {
    setObjectName(toQt(element.name()));
    nameBy(*this, words::kLogTree);
    setModel(&model_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAnimated(false);
    setSelectionMode(ExtendedSelection);
    setFrameShape(NoFrame);
    watchWhile(*this, element, [this] { follow(); });
    follow();
  }

 private:
  void follow();
  void expandFirst();
  void followSelection();

  Tree& element_;
  TreeModel model_;
  std::uint64_t selections_ = 0;
};

void TreeView::expandFirst() {
  for (int row = 0; row < model_.rowCount(); ++row) {
    const QModelIndex index = model_.index(row, 0);
    if (model_.source()->expanded(model_.nodeOf(index))) expand(index);
  }
  selectionModel()->setCurrentIndex(model_.index(0, 0), QItemSelectionModel::NoUpdate);
}

// At once, for a source that was given up must not be asked again.
void TreeView::follow() {
  followCommon(*this, element_);
  if (model_.source() != element_.source()) {
    model_.setSource(element_.source());
    expandFirst();
  }
  if (std::exchange(selections_, element_.selections()) != element_.selections()) followSelection();
}

void TreeView::followSelection() {
  const std::vector<TreeNode>& nodes = element_.selection();
  QItemSelection wanted;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    const QModelIndex index = model_.indexOf(nodes[i]);
    wanted.append(QItemSelectionRange(index));
    for (QModelIndex above = index.parent(); i < kMostOpened && above.isValid(); above = above.parent()) {
      expand(above);
    }
  }
  if (!nodes.empty()) {
    selectionModel()->setCurrentIndex(model_.indexOf(nodes.front()), QItemSelectionModel::NoUpdate);
  }
  selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
  if (!nodes.empty()) scrollTo(model_.indexOf(nodes.front()), PositionAtCenter);
}

}  // namespace

QWidget* drawTree(Tree& element, QWidget* parent) {
  return new TreeView(element, parent);
}

}  // namespace zephon
