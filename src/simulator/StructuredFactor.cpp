#include "simulator/StructuredFactor.h"

#include "simulator/PivotCheck.h"

#include <cstddef>

namespace {

std::size_t at(LinkStructure::Index i) {
  return static_cast<std::size_t>(i);
}

} // namespace

StructuredFactor::StructuredFactor(const LinkStructure& structure)
    : structure_(structure), diagonal_(structure.count()), leafFactors_(structure.leaves().size()),
      core_(structure.core().size(), at(structure.coreHalfWidth())),
      coreValues_(structure.core().size()) {}

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

  core_.setZero();
  const auto& place = structure_.placeInCore();
  for (const LinkStructure::Index i : structure_.core())
    core_.at(at(place[at(i)]), at(place[at(i)])) = diagonal_[at(i)];
  const auto& pairs = structure_.pairs();
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    const LinkStructure::Index p = place[at(pairs[k].first)];
    const LinkStructure::Index q = place[at(pairs[k].second)];
    if (p < 0 || q < 0)
      continue;
    core_.at(at(p), at(q)) = matrix.entries[2 * k];
    core_.at(at(q), at(p)) = matrix.entries[2 * k + 1];
  }
  return core_.factorise();
}

void StructuredFactor::solve(double* x) {
  const auto& leaves = structure_.leaves();
  for (std::size_t k = 0; k < leaves.size(); ++k)
    x[leaves[k].root] -= leafFactors_[k].toRoot * x[leaves[k].leaf];

  const auto& core = structure_.core();
  for (std::size_t k = 0; k < core.size(); ++k)
    coreValues_[k] = x[core[k]];
  core_.solve(coreValues_.data());
  for (std::size_t k = 0; k < core.size(); ++k)
    x[core[k]] = coreValues_[k];

  for (std::size_t k = leaves.size(); k-- > 0;)
    x[leaves[k].leaf] = x[leaves[k].leaf] * leafFactors_[k].inversePivot -
                        leafFactors_[k].fromRoot * x[leaves[k].root];
}
