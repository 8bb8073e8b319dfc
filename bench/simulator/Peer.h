#pragma once

/// Prints what the doublet on the grid of another simulator costs, and how far its temperatures lie
/// from those of that one.
void printPeer();
