#pragma once

#include <cstddef>

#include "form/logs.h"

namespace zephon {

// The rows of a log's table, whatever its count of columns. The table has to stand as long as the view.
class LogView {
 public:
  template <std::size_t Columns>
  explicit LogView(const LogTable<Columns>& table)
      : table_(&table), columns_(Columns), rows_(table.size()), row_(&rowOf<Columns>) {}

  std::size_t columns() const { return columns_; }
  std::size_t rows() const { return rows_; }
  // U, the largest row index. The last row takes no part in most of what is asked of a log: it is the moment
  // of a download, or the row that is being filled. 0 for an empty table as well.
  std::size_t largestRow() const { return rows_ == 0 ? 0 : rows_ - 1; }

  // The cells of a row by column.
  const double* row(std::size_t row) const { return row_(table_, row); }
  double at(std::size_t column, std::size_t row) const { return row_(table_, row)[column]; }

 private:
  template <std::size_t Columns>
  static const double* rowOf(const void* table, std::size_t row) {
    return (*static_cast<const LogTable<Columns>*>(table))[row].data();
  }

  const void* table_;
  std::size_t columns_;
  std::size_t rows_;
  const double* (*row_)(const void*, std::size_t);
};

}  // namespace zephon
