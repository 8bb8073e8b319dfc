#pragma once

#include <string>
#include <vector>

namespace Verification {

class Report;

/// Runs the cases of these names, or all of them if there are none, and saves the report.
void writeCases(Report& report, const std::vector<std::string>& names);

} // namespace Verification
