#pragma once

/// Prints a table of closed loops with near wells: the steps of the heat model with the structured
/// solver and with the packaged one over the whole matrix, iterations that did not converge, and
/// how far the temperatures of the cells lie apart at the end; and a summary by distance.
void printClosedLoops();
