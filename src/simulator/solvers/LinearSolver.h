#pragma once

/// How an integrator solves the linear systems of its Newton iteration.
enum class LinearSolver {
  /// Over the links of the system as they are: a difference quotient by colours, chains eliminated
  /// cell by cell, then the cells that remain.
  Structured,
  /// The packaged band matrix over all elements, with pivoting and a difference quotient over the
  /// columns of the band. Slow; entries outside the band fold back into it.
  Reference
};
