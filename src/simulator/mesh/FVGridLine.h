#pragma once

#include <cstddef>
#include <vector>

/// Cells along one axis in ascending order. The cells of a finished mesh axis join without gaps;
/// the class itself does not enforce it.
class FVGridLine {
public:
  struct Cell {
    double start; ///< lower edge [m]
    double width; ///< [m]
  };

  std::size_t count() const { return cells_.size(); }
  /// Lower edge of cell i [m]; i is less than count(), as in the three operations that follow.
  double start(std::size_t i) const { return cells_[i].start; }
  double width(std::size_t i) const { return cells_[i].width; }
  double halfWidth(std::size_t i) const { return cells_[i].width * 0.5; }
  double centre(std::size_t i) const { return cells_[i].width * 0.5 + cells_[i].start; }

  /// Index of the cell that holds `value` [m], lower edges included; -1 below the first cell, at
  /// the upper edge of the last cell and above it, and on an empty line.
  int find(double value) const;

  /// Appends a cell behind the last one.
  void append(double start, double width) { cells_.push_back({start, width}); }
  /// Changes the width of the last cell [m]; the line must not be empty.
  void setLastWidth(double width) { cells_.back().width = width; }
  const std::vector<Cell>& cells() const { return cells_; }

private:
  std::vector<Cell> cells_;
};
