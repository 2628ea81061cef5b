// How many rounds of z = z z + c a point stays within |z| <= 2: the innermost loop of the Mandelbrot and
// Julia sets. One kernel counts one point at a time, others several side by side in vector registers; all
// give the same counts, since each does the same operations on doubles in the same order.
#pragma once

#include <cstdint>

namespace zephyl {

constexpr int ESCAPE_ROUNDS = 128;

// Points to be counted together.
struct TEscapeBatch {
  static constexpr int LIMIT = 226;
  static constexpr int ROOM = LIMIT + 14;  // kernels fill up the last group of points by themselves

  alignas(32) double z_re[ROOM];  // where each begins
  alignas(32) double z_im[ROOM];
  alignas(32) double c_re[ROOM];
  alignas(32) double c_im[ROOM];
  int count = 0;
  std::uint8_t rounds[ROOM];  // the result: 0 if |z| > 2 at the start, ESCAPE_ROUNDS if it never is
};

using TEscapeKernel = void (*)(TEscapeBatch& batch);

struct TNamedEscapeKernel {
  const char* name;
  TEscapeKernel kernel;
};

// Those that this processor can run, the fastest first and the plain one last.
const TNamedEscapeKernel* escape_kernels(int& count);

// Counts with the fastest.
void count_escape_rounds(TEscapeBatch& batch);

}  // namespace zephyl
