#include "ui/vector_registers.h"

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

namespace ui {

#if defined(__x86_64__) || defined(__i386__)

namespace {

// Built for AVX alone, so that the program as a whole runs on processors without it.
__attribute__((target("avx"))) void ClearUpperHalves() { _mm256_zeroupper(); }

}  // namespace

void ClearVectorRegisters() {
  // Asks the system too, which may keep the registers of old processors only.
  static const bool known = __builtin_cpu_supports("avx") != 0;
  if (known) ClearUpperHalves();
}

#else

void ClearVectorRegisters() {}

#endif

}  // namespace ui
