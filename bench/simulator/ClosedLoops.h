#pragma once

/// Prints a table of closed loops with near wells: the steps of the heat model with the structured
/// solver and with the packaged one over the whole matrix, steps that did not converge, and how far
/// the temperatures of the cells lie apart at the end.
void printClosedLoops();
