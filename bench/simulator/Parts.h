#pragma once

#include "Table.h"

#include <vector>

/// Measures the parts of a run one by one: mesh, evaluations, Jacobian, factorisation, solution.
std::vector<Row> measureParts();
