// The kernels of escape_time.h by name. Between the files of this folder only.
#pragma once

#include "plot/fractals/escape_time.h"

#if defined(__SSE2__)
#define ZEPHYL_ESCAPE_SSE2 1
#endif
#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define ZEPHYL_ESCAPE_AVX2 1
#endif

namespace zephyl {

void count_escape_plain(TEscapeBatch& batch);
void count_escape_sse2(TEscapeBatch& batch);
// To be called only where the processor has AVX2.
void count_escape_avx2(TEscapeBatch& batch);

// Fills up the batch to a multiple of `group` with points that escape at once.
inline void fill_up_batch(TEscapeBatch& batch, int group) {
  for (int i = batch.count; i % group != 0; ++i) {
    batch.z_re[i] = 4.0;
    batch.z_im[i] = batch.c_re[i] = batch.c_im[i] = 0.0;
  }
}

}  // namespace zephyl
