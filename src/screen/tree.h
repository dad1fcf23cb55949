#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "screen/colour.h"
#include "screen/element.h"

namespace zephon {

// A node of a tree: a small number that its source gives out. The root has no text and is not shown.
using TreeNode = std::uint32_t;
inline constexpr TreeNode kTreeRoot = 0;

// What a tree shows, asked for node by node as it comes into view; nothing is held as text. A source does not
// change as long as it lives. Nodes given to it are its own, indices below the count of children.
class TreeSource {
 public:
  TreeSource() = default;
  TreeSource(const TreeSource&) = delete;
  TreeSource& operator=(const TreeSource&) = delete;
  virtual ~TreeSource() = default;

  virtual std::size_t childCount(TreeNode node) const = 0;
  virtual TreeNode child(TreeNode node, std::size_t index) const = 0;
  // Of any node but the root.
  virtual TreeNode parent(TreeNode node) const = 0;
  virtual std::size_t indexInParent(TreeNode node) const = 0;
  virtual std::string text(TreeNode node) const = 0;
  virtual Colour colour(TreeNode node) const = 0;
  virtual bool expanded(TreeNode node) const = 0;  // shown open at first

  // The node of a row of the table behind the tree, and the row to which a node belongs.
  virtual std::optional<TreeNode> nodeOfRow(std::size_t row) const = 0;
  virtual std::optional<std::size_t> rowOfNode(TreeNode node) const = 0;
};

class Tree : public Element {
 public:
  using Element::Element;

  // Null for an empty tree. Whatever a source refers to has to stand until the tree has another one: who
  // replaces a table clears its tree first.
  const std::shared_ptr<const TreeSource>& source() const { return source_; }
  void setSource(std::shared_ptr<const TreeSource> source) {
    selection_.clear();
    write(source_, std::move(source));
  }
  void clear() { setSource(nullptr); }
  bool empty() const { return source_ == nullptr || source_->childCount(kTreeRoot) == 0; }

  // Nodes of the source that are picked out; the first is brought into view. The user may have picked others
  // since, so selecting the same nodes once more counts too.
  const std::vector<TreeNode>& selection() const { return selection_; }
  std::uint64_t selections() const { return selections_; }  // how many there were
  void select(std::vector<TreeNode> nodes) {
    selection_ = std::move(nodes);
    ++selections_;
    changed();
  }

 private:
  std::shared_ptr<const TreeSource> source_;
  std::vector<TreeNode> selection_;
  std::uint64_t selections_ = 0;
};

}  // namespace zephon
