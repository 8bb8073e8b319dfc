#pragma once

#include <stdexcept>
#include <string>

/// A call of the time integrator that failed. The text is
/// "CvodeError:: " + name of the call + ": " + status, for example "CvodeError:: CVode: -4".
class CvodeError : public std::runtime_error {
public:
  CvodeError(const std::string& call, int status);
};

/// A call of the non-linear solver that failed. The text is
/// "KinsolError:: " + name of the call + ": " + status.
class KinsolError : public std::runtime_error {
public:
  KinsolError(const std::string& call, int status);
};
