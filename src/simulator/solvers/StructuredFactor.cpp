#include "simulator/solvers/StructuredFactor.h"

#include "simulator/solvers/PivotCheck.h"

#include <cstddef>

namespace {

std::size_t at(LinkStructure::Index i) {
  return static_cast<std::size_t>(i);
}

} // namespace

StructuredFactor::StructuredFactor(const LinkStructure& structure, Core core)
    : structure_(structure), kind_(core), diagonal_(structure.count()),
      leafFactors_(structure.leaves().size()), coreValues_(structure.core().size()) {
  const std::size_t order = structure.core().size();
  const std::size_t row = at(structure.coreHalfWidth());
  if (core == Core::Automatic && structure.leaves().empty() && structure.isCoreGrid())
    diagonalisation_.emplace(order, row);
  else
    makeCore();
}

void StructuredFactor::makeCore() {
  constexpr LinkStructure::Index widestBand = 40; // where both take the same time
  const LinkStructure::Index width = structure_.coreHalfWidth();
  const bool isWide = kind_ == Core::Iteration || (kind_ == Core::Automatic && width > widestBand);
  if (isWide && structure_.isCoreGrid())
    iteration_.emplace(structure_.core().size(), at(width));
  else
    band_.emplace(structure_.core().size(), at(width));
}

template <class SetDiagonal, class SetLink>
void StructuredFactor::fillCore(double factor, SetDiagonal setDiagonal, SetLink setLink) const {
  const auto& place = structure_.placeInCore();
  for (const LinkStructure::Index i : structure_.core())
    setDiagonal(at(place[at(i)]), diagonal_[at(i)]);
  const auto& pairs = structure_.pairs();
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    const LinkStructure::Index p = place[at(pairs[k].first)];
    const LinkStructure::Index q = place[at(pairs[k].second)];
    if (p < 0 || q < 0)
      continue;
    const double ofFirst = factor * matrix_->entries[2 * k];
    const double ofSecond = factor * matrix_->entries[2 * k + 1];
    if (p < q)
      setLink(at(p), at(q), ofFirst, ofSecond);
    else
      setLink(at(q), at(p), ofSecond, ofFirst);
  }
}

void StructuredFactor::setMatrix(const StructuredMatrix& matrix) {
  matrix_ = &matrix;
  if (!diagonalisation_)
    return;
  diagonal_ = matrix.diagonal;
  fillCore(
      1.0, [&](auto i, double value) { diagonalisation_->setDiagonal(i, value); },
      [&](auto i, auto j, double upper, double lower) {
        diagonalisation_->setLink(i, j, upper, lower);
      });
  if (!diagonalisation_->analyse())
    diagonalisation_.reset();
}

bool StructuredFactor::eliminateLeaves(double factor, double identity) {
  for (std::size_t i = 0; i < diagonal_.size(); ++i)
    diagonal_[i] = factor * matrix_->diagonal[i] + identity;
  const auto& leaves = structure_.leaves();
  for (std::size_t k = 0; k < leaves.size(); ++k) {
    const LinkStructure::Leaf& leaf = leaves[k];
    const double pivot = diagonal_[at(leaf.leaf)];
    const double fromRoot = factor * matrix_->entries[at(leaf.leafEntry)];
    if (!isDominant(pivot, std::abs(fromRoot)))
      return false;
    const double inverse = 1.0 / pivot;
    const double toRoot = factor * matrix_->entries[at(leaf.rootEntry)] * inverse;
    diagonal_[at(leaf.root)] -= toRoot * fromRoot;
    leafFactors_[k] = {toRoot, inverse, fromRoot * inverse};
  }
  return true;
}

bool StructuredFactor::factorise(double factor, double identity) {
  isDiagonalised_ = diagonalisation_ && diagonalisation_->factorise(factor, identity);
  if (isDiagonalised_)
    return true;
  if (!iteration_ && !band_)
    makeCore();
  if (!eliminateLeaves(factor, identity))
    return false;
  const auto fill = [&](auto& core) {
    core.setZero();
    fillCore(
        factor, [&](auto i, double value) { core.setDiagonal(i, value); },
        [&](auto i, auto j, double upper, double lower) { core.setLink(i, j, upper, lower); });
    return core.factorise();
  };
  return iteration_ ? fill(*iteration_) : fill(*band_);
}

bool StructuredFactor::solveCore(double* x) {
  const auto& core = structure_.core();
  if (!isDiagonalised_ && iteration_)
    return iteration_->solve(x, core.data());
  for (std::size_t k = 0; k < core.size(); ++k)
    coreValues_[k] = x[core[k]];
  if (isDiagonalised_)
    diagonalisation_->solve(coreValues_.data());
  else
    band_->solve(coreValues_.data());
  for (std::size_t k = 0; k < core.size(); ++k)
    x[core[k]] = coreValues_[k];
  return true;
}

bool StructuredFactor::solve(double* x) {
  const auto& leaves = structure_.leaves();
  for (std::size_t k = 0; k < leaves.size(); ++k)
    x[leaves[k].root] -= leafFactors_[k].toRoot * x[leaves[k].leaf];

  if (!solveCore(x))
    return false;

  for (std::size_t k = leaves.size(); k-- > 0;)
    x[leaves[k].leaf] = x[leaves[k].leaf] * leafFactors_[k].inversePivot -
                        leafFactors_[k].fromRoot * x[leaves[k].root];
  return true;
}
