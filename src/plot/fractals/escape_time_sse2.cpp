// Two points in a register, four registers side by side: the rounds of one point wait for each other, those
// of different points don't.

#include "plot/fractals/escape_time_kernels.h"

#if defined(ZEPHYL_ESCAPE_SSE2)

#include <emmintrin.h>

namespace zephyl {

namespace {

constexpr int LANES = 2;
constexpr int REGISTERS = 4;
constexpr int GROUP = LANES * REGISTERS;

// Two points under way; `within` is all ones for one that has not escaped, `rounds` counts its rounds.
struct TPair {
  __m128d re, im, c_re, c_im, within, rounds;

  TPair(const TEscapeBatch& batch, int i)
      : re(_mm_load_pd(batch.z_re + i)),
        im(_mm_load_pd(batch.z_im + i)),
        c_re(_mm_load_pd(batch.c_re + i)),
        c_im(_mm_load_pd(batch.c_im + i)),
        within(_mm_castsi128_pd(_mm_set1_epi32(-1))),
        rounds(_mm_setzero_pd()) {}

  void advance() {
    const __m128d re_squared = _mm_mul_pd(re, re), im_squared = _mm_mul_pd(im, im);
    within = _mm_and_pd(within, _mm_cmple_pd(_mm_add_pd(re_squared, im_squared), _mm_set1_pd(4.0)));
    rounds = _mm_add_pd(rounds, _mm_and_pd(within, _mm_set1_pd(1.0)));
    const __m128d product = _mm_mul_pd(re, im);
    im = _mm_add_pd(_mm_add_pd(product, product), c_im);
    re = _mm_add_pd(_mm_sub_pd(re_squared, im_squared), c_re);
  }
};

void count_group(TEscapeBatch& batch, int i) {
  TPair a(batch, i), b(batch, i + 2), c(batch, i + 4), d(batch, i + 6);
  for (int round = 0; round < ESCAPE_ROUNDS; ++round) {
    a.advance(), b.advance(), c.advance(), d.advance();
    if (!_mm_movemask_pd(_mm_or_pd(_mm_or_pd(a.within, b.within), _mm_or_pd(c.within, d.within)))) break;
  }
  alignas(16) double rounds[GROUP];
  _mm_store_pd(rounds, a.rounds);
  _mm_store_pd(rounds + 2, b.rounds);
  _mm_store_pd(rounds + 4, c.rounds);
  _mm_store_pd(rounds + 6, d.rounds);
  for (int lane = 0; lane < GROUP; ++lane) batch.rounds[i + lane] = static_cast<std::uint8_t>(rounds[lane]);
}

}  // namespace

void count_escape_sse2(TEscapeBatch& batch) {
  fill_up_batch(batch, GROUP);
  for (int i = 0; i < batch.count; i += GROUP) count_group(batch, i);
}

}  // namespace zephyl

#endif
