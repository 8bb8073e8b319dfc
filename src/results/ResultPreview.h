#pragma once

#include "host/PreviewInterface.h"
#include "results/Isolines.h"

#include <vector>

class FVMesh;

namespace TVR {

/// Results of a run with this frame, by cell, with the lines that the page would draw through them.
/// Any thread.
Sketra_lib::ResultPreview resultPreview(const FVMesh& mesh, const RunFrame& frame,
                                        std::vector<double> drawdowns,
                                        std::vector<double> temperatures,
                                        const IsothermChoice& isotherms);

} // namespace TVR
