#include "window/tree_model.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <utility>

#include "window/bindings.h"
#include "window/colours.h"

namespace zephon {
namespace {

QIcon disc(const QColor& colour) {
  constexpr int kSide = 32;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(5, 5, kSide - 10, kSide - 10));
  return picture;
}

}  // namespace

void TreeModel::setSource(std::shared_ptr<const TreeSource> source) {
  beginResetModel();
  source_ = std::move(source);
  endResetModel();
}

TreeNode TreeModel::nodeOf(const QModelIndex& index) const {
  return index.isValid() ? static_cast<TreeNode>(index.internalId()) : kTreeRoot;
}

QModelIndex TreeModel::indexOf(TreeNode node) const {
  if (!source_ || node == kTreeRoot) return {};
  return createIndex(static_cast<int>(source_->indexInParent(node)), 0, node);
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column != 0 || row >= rowCount(parent)) return {};
  return createIndex(row, column, source_->child(nodeOf(parent), static_cast<std::size_t>(row)));
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  return source_ && index.isValid() ? indexOf(source_->parent(nodeOf(index))) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return source_ ? static_cast<int>(source_->childCount(nodeOf(parent))) : 0;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!source_ || !index.isValid()) return {};
  const TreeNode node = nodeOf(index);
  if (role == Qt::DisplayRole) return toQt(source_->text(node));
  const Colour colour = source_->colour(node);
  if (colour == kBlack) return {};
  const QPalette palette = QGuiApplication::palette();
  if (role == Qt::DecorationRole) {
    const QColor shape = shapeColour(colour, palette);
    auto& made = discs_[shape.rgb()];
    if (made.isNull()) made = disc(shape);
    return made;
  }
  if (role == Qt::ForegroundRole) return textColour(colour, palette);
  return {};
}

}  // namespace zephon
