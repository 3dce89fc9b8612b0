// The instruction sets that the vector loops are compiled for. Include it before any header of Highway.
#pragma once

// On x86 all of them, chosen at run time. On other processors the compiler's default: every arm64 processor has NEON,
// and the loops do not support vectors of unknown length.
#if !defined(__x86_64__) && !defined(HWY_COMPILE_ONLY_STATIC)
#define HWY_COMPILE_ONLY_STATIC
#endif
