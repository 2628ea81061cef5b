#include "plot/fractals/escape_time.h"

#include "plot/fractals/escape_time_kernels.h"

namespace zephyl {

namespace {

int rounds_of(double z_re, double z_im, double c_re, double c_im) {
  for (int round = 0; round < ESCAPE_ROUNDS; ++round) {
    const double re_squared = z_re * z_re, im_squared = z_im * z_im;
    if (re_squared + im_squared > 4.0) return round;
    const double product = z_re * z_im;
    const double next_im = product + product + c_im, next_re = re_squared - im_squared + c_re;
    if (next_re == z_re && next_im == z_im) return ESCAPE_ROUNDS;  // it stays there for ever
    z_re = next_re;
    z_im = next_im;
  }
  return ESCAPE_ROUNDS;
}

constexpr TNamedEscapeKernel kernels[] = {
#if defined(ZEPHYL_ESCAPE_AVX2)
    {"AVX2", count_escape_avx2},
#endif
#if defined(ZEPHYL_ESCAPE_SSE2)
    {"SSE2", count_escape_sse2},
#endif
    {"plain", count_escape_plain},
};
constexpr int KERNEL_COUNT = sizeof kernels / sizeof kernels[0];

}  // namespace

void count_escape_plain(TEscapeBatch& batch) {
  for (int i = 0; i < batch.count; ++i)
    batch.rounds[i] =
        static_cast<std::uint8_t>(rounds_of(batch.z_re[i], batch.z_im[i], batch.c_re[i], batch.c_im[i]));
}

const TNamedEscapeKernel* escape_kernels(int& count) {
  int first = 0;
#if defined(ZEPHYL_ESCAPE_AVX2)
  if (!__builtin_cpu_supports("avx2")) first = 1;
#endif
  count = KERNEL_COUNT - first;
  return kernels + first;
}

void count_escape_rounds(TEscapeBatch& batch) {
  int count;
  static const TEscapeKernel fastest = escape_kernels(count)->kernel;
  fastest(batch);
}

}  // namespace zephyl
