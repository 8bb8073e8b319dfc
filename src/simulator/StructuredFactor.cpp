#include "simulator/StructuredFactor.h"

#include "simulator/PivotCheck.h"

#include <cstddef>

namespace {

std::size_t at(LinkStructure::Index i) {
  return static_cast<std::size_t>(i);
}

} // namespace

StructuredFactor::StructuredFactor(const LinkStructure& structure, Core core)
    : structure_(structure), diagonal_(structure.count()), leafFactors_(structure.leaves().size()),
      coreValues_(structure.core().size()) {
  constexpr LinkStructure::Index widestBand = 40; // where both take the same time
  const LinkStructure::Index width = structure.coreHalfWidth();
  const bool isWide = core == Core::Iteration || (core == Core::Automatic && width > widestBand);
  const std::size_t order = structure.core().size();
  if (core == Core::Automatic && structure.leaves().empty() && structure.isCoreGrid() &&
      order % at(width) == 0)
    diagonalisation_.emplace(order, at(width));
  if (isWide && structure.isCoreGrid())
    iteration_.emplace(order, at(width));
  else
    band_.emplace(order, at(width));
}

template <class Grid>
void StructuredFactor::fillGrid(Grid& grid, const StructuredMatrix& matrix) const {
  grid.setZero();
  const auto& place = structure_.placeInCore();
  for (const LinkStructure::Index i : structure_.core())
    grid.setDiagonal(at(place[at(i)]), diagonal_[at(i)]);
  const auto& pairs = structure_.pairs();
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    const LinkStructure::Index p = place[at(pairs[k].first)];
    const LinkStructure::Index q = place[at(pairs[k].second)];
    if (p < 0 || q < 0)
      continue;
    if (p < q)
      grid.setLink(at(p), at(q), matrix.entries[2 * k], matrix.entries[2 * k + 1]);
    else
      grid.setLink(at(q), at(p), matrix.entries[2 * k + 1], matrix.entries[2 * k]);
  }
}

bool StructuredFactor::factorise(const StructuredMatrix& matrix) {
  diagonal_ = matrix.diagonal;
  const auto& leaves = structure_.leaves();
  for (std::size_t k = 0; k < leaves.size(); ++k) {
    const LinkStructure::Leaf& leaf = leaves[k];
    const double pivot = diagonal_[at(leaf.leaf)];
    const double fromRoot = matrix.entries[at(leaf.leafEntry)];
    if (!isDominant(pivot, std::abs(fromRoot)))
      return false;
    const double inverse = 1.0 / pivot;
    const double toRoot = matrix.entries[at(leaf.rootEntry)] * inverse;
    diagonal_[at(leaf.root)] -= toRoot * fromRoot;
    leafFactors_[k] = {toRoot, inverse, fromRoot * inverse};
  }

  if (diagonalisation_) {
    fillGrid(*diagonalisation_, matrix);
    isDiagonalised_ = diagonalisation_->factorise();
    if (isDiagonalised_)
      return true;
  }
  if (iteration_) {
    fillGrid(*iteration_, matrix);
    return iteration_->factorise();
  }
  fillBand(matrix);
  return band_->factorise();
}

void StructuredFactor::fillBand(const StructuredMatrix& matrix) {
  band_->setZero();
  const auto& place = structure_.placeInCore();
  for (const LinkStructure::Index i : structure_.core())
    band_->at(at(place[at(i)]), at(place[at(i)])) = diagonal_[at(i)];
  const auto& pairs = structure_.pairs();
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    const LinkStructure::Index p = place[at(pairs[k].first)];
    const LinkStructure::Index q = place[at(pairs[k].second)];
    if (p < 0 || q < 0)
      continue;
    band_->at(at(p), at(q)) = matrix.entries[2 * k];
    band_->at(at(q), at(p)) = matrix.entries[2 * k + 1];
  }
}

bool StructuredFactor::solveCore() {
  if (isDiagonalised_)
    diagonalisation_->solve(coreValues_.data());
  else if (iteration_)
    return iteration_->solve(coreValues_.data());
  else
    band_->solve(coreValues_.data());
  return true;
}

bool StructuredFactor::solve(double* x) {
  const auto& leaves = structure_.leaves();
  for (std::size_t k = 0; k < leaves.size(); ++k)
    x[leaves[k].root] -= leafFactors_[k].toRoot * x[leaves[k].leaf];

  const auto& core = structure_.core();
  for (std::size_t k = 0; k < core.size(); ++k)
    coreValues_[k] = x[core[k]];
  if (!solveCore())
    return false;
  for (std::size_t k = 0; k < core.size(); ++k)
    x[core[k]] = coreValues_[k];

  for (std::size_t k = leaves.size(); k-- > 0;)
    x[leaves[k].leaf] = x[leaves[k].leaf] * leafFactors_[k].inversePivot -
                        leafFactors_[k].fromRoot * x[leaves[k].root];
  return true;
}
