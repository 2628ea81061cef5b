// The one uniform source of the calculator: Knuth's subtractive generator (The Art of Computer Programming,
// volume 2, 3.2.2), as published as ran3 in Numerical Recipes, with MBIG 1000000000 and MSEED 161803398.
#pragma once

namespace zephyl {

// Uniform, from 0 up to but not including 1.
double next_random();

// s from 0 up to but not including 1, else ERR_DOMAIN and 0. 0 seeds from the clock. Returns the number that
// the next call of next_random will return.
double seed_random(double s);

}  // namespace zephyl
