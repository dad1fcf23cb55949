#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QIcon>
#include <map>
#include <memory>

#include "screen/tree.h"

namespace zephon {

// A tree's source as a model of Qt: nothing is held, every node is asked for as it comes into view. A node
// with a colour of its own has it as a disc before its text.
class TreeModel : public QAbstractItemModel {
 public:
  using QAbstractItemModel::QAbstractItemModel;

  void setSource(std::shared_ptr<const TreeSource> source);
  const std::shared_ptr<const TreeSource>& source() const { return source_; }
  QModelIndex indexOf(TreeNode node) const;
  TreeNode nodeOf(const QModelIndex& index) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& /*parent*/ = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::shared_ptr<const TreeSource> source_;
  mutable std::map<QRgb, QIcon> discs_;
};

}  // namespace zephon
