#pragma once

#include "simulator/balance/FVSystem.h"

#include <cvode/cvode.h>
#include <nvector/nvector_serial.h>
#include <sundials/sundials_context.h>

#include <cstddef>

/// What the integrator of a system tolerated in the state of an element at its last step: relative
/// tolerance * magnitude of the state + absolute tolerance. The integrator has made a step.
inline double toleranceIn(const FVSystem& system, std::size_t element) {
  SUNContext context = nullptr;
  SUNContext_Create(nullptr, &context);
  const N_Vector weights = N_VNew_Serial(static_cast<sunindextype>(system.elementCount()), context);
  CVodeGetErrWeights(system.solverMemory, weights);
  const double weight = N_VGetArrayPointer(weights)[element];
  N_VDestroy(weights);
  SUNContext_Free(&context);
  return 1.0 / weight;
}
