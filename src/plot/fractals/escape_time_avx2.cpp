// Four points in a register, two registers side by side. Compiled for AVX2 wherever the rest is for less, and
// called only where the processor has it.

#include "plot/fractals/escape_time_kernels.h"

#if defined(ZEPHYL_ESCAPE_AVX2)

#include <immintrin.h>

#define ZEPHYL_AVX2 __attribute__((target("avx2")))

namespace zephyl {

namespace {

constexpr int LANES = 4;
constexpr int REGISTERS = 2;
constexpr int GROUP = LANES * REGISTERS;

// Four points under way, as the pairs of escape_time_sse2.cpp.
struct TFour {
  __m256d re, im, c_re, c_im, within, rounds;

  ZEPHYL_AVX2 TFour(const TEscapeBatch& batch, int i)
      : re(_mm256_load_pd(batch.z_re + i)),
        im(_mm256_load_pd(batch.z_im + i)),
        c_re(_mm256_load_pd(batch.c_re + i)),
        c_im(_mm256_load_pd(batch.c_im + i)),
        within(_mm256_castsi256_pd(_mm256_set1_epi32(-1))),
        rounds(_mm256_setzero_pd()) {}

  ZEPHYL_AVX2 void advance() {
    const __m256d re_squared = _mm256_mul_pd(re, re), im_squared = _mm256_mul_pd(im, im);
    const __m256d near_by =
        _mm256_cmp_pd(_mm256_add_pd(re_squared, im_squared), _mm256_set1_pd(4.0), _CMP_LE_OQ);
    within = _mm256_and_pd(within, near_by);
    rounds = _mm256_add_pd(rounds, _mm256_and_pd(within, _mm256_set1_pd(1.0)));
    const __m256d product = _mm256_mul_pd(re, im);
    im = _mm256_add_pd(_mm256_add_pd(product, product), c_im);
    re = _mm256_add_pd(_mm256_sub_pd(re_squared, im_squared), c_re);
  }
};

ZEPHYL_AVX2 void count_group(TEscapeBatch& batch, int i) {
  TFour a(batch, i), b(batch, i + LANES);
  for (int round = 0; round < ESCAPE_ROUNDS; ++round) {
    a.advance();
    b.advance();
    if (!_mm256_movemask_pd(_mm256_or_pd(a.within, b.within))) break;
  }
  alignas(32) double rounds[GROUP];
  _mm256_store_pd(rounds, a.rounds);
  _mm256_store_pd(rounds + LANES, b.rounds);
  for (int lane = 0; lane < GROUP; ++lane) batch.rounds[i + lane] = static_cast<std::uint8_t>(rounds[lane]);
}

}  // namespace

ZEPHYL_AVX2 void count_escape_avx2(TEscapeBatch& batch) {
  fill_up_batch(batch, GROUP);
  for (int i = 0; i < batch.count; i += GROUP) count_group(batch, i);
}

}  // namespace zephyl

#endif
