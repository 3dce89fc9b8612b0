// For which instruction sets the vector loops are compiled. Included before any header of Highway.
#pragma once

// On x86 for all of them, chosen when the program runs. Elsewhere for the compiler's own: every arm64 processor has
// NEON, and the loops are not written for vectors whose length is unknown.
#if !defined(__x86_64__) && !defined(HWY_COMPILE_ONLY_STATIC)
#define HWY_COMPILE_ONLY_STATIC
#endif
