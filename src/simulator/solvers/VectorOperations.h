#pragma once

#include <sundials/sundials_nvector.h>

/// Gives a serial vector, and all vectors that are cloned from it, this project's own forms of the
/// operations that an integrator spends its time in. The packaged ones are built without
/// optimisation; the results differ by rounding of sums at most.
void useFastOperations(N_Vector vector);
