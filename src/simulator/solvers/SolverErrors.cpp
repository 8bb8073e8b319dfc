#include "simulator/solvers/SolverErrors.h"

namespace {

std::string errorText(const char* prefix, const std::string& call, int status) {
  return prefix + (": " + call) + ": " + std::to_string(status);
}

} // namespace

CvodeError::CvodeError(const std::string& call, int status)
    : std::runtime_error(errorText("CvodeError:", call, status)) {}

KinsolError::KinsolError(const std::string& call, int status)
    : std::runtime_error(errorText("KinsolError:", call, status)) {}
