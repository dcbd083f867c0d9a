// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/wide_registers.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace kervol {

#if defined(__x86_64__)
namespace {

[[gnu::target("avx")]] void Clear_Upper_Halves() {
    _mm256_zeroupper();
}

}  // namespace

void Clear_Wide_Registers() {
    if (__builtin_cpu_supports("avx")) Clear_Upper_Halves();
}
#else
void Clear_Wide_Registers() {}
#endif

}  // namespace kervol
