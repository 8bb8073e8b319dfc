#pragma once

/// Marks a function that is also compiled for processors with vectors of four doubles; which of the
/// two forms runs is decided when the program starts. Both do the same operations in the same
/// order, so that results do not depend on the processor. Left out where it is not known to work:
/// on other systems, and under the sanitizers, which start later than the choice is made.
#if defined(__x86_64__) && defined(__gnu_linux__) && defined(__GNUC__) && !defined(__clang__) &&   \
    !defined(__SANITIZE_ADDRESS__)
#define TVR_WIDE_VECTORS [[gnu::target_clones("avx2", "default")]]
#else
#define TVR_WIDE_VECTORS
#endif
