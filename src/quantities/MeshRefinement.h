#pragma once

#include <vector>

class FVMesh;
class Well;

#include <memory>

namespace TVR::Quantities {

/// A mesh over the same area with half the width of the cells, or with twice their width, but for
/// the rows and columns of the cells that wells stand in: the width of those stands for the bore,
/// and a drawdown in it means nothing if it changes.
FVMesh refined(const FVMesh& mesh, const std::vector<std::unique_ptr<Well>>& wells);
FVMesh coarsened(const FVMesh& mesh, const std::vector<std::unique_ptr<Well>>& wells);

} // namespace TVR::Quantities
