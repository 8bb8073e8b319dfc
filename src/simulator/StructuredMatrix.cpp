#include "simulator/StructuredMatrix.h"

#include <algorithm>

void StructuredMatrix::setZero() {
  std::fill(diagonal.begin(), diagonal.end(), 0.0);
  std::fill(entries.begin(), entries.end(), 0.0);
}

void StructuredMatrix::scaleAndAddIdentity(double factor) {
  for (double& value : diagonal)
    value = factor * value + 1.0;
  for (double& value : entries)
    value *= factor;
}
