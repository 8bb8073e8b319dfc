#pragma once

/// Prints a table of the differences between runs at the tolerances that a batch file has by
/// default and runs at 1e-10, over all cells and output times.
void printAccuracy();
