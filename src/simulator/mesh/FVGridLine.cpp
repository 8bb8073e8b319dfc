#include "simulator/mesh/FVGridLine.h"

int FVGridLine::find(double value) const {
  for (std::size_t i = 0; i < cells_.size(); ++i)
    if (cells_[i].start > value)
      return static_cast<int>(i) - 1;
  if (cells_.empty() || !(cells_.back().start + cells_.back().width > value))
    return -1;
  return static_cast<int>(cells_.size()) - 1;
}
