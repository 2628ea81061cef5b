#include "numerics/factorial_table.h"

#include <gtest/gtest.h>

#include <boost/math/special_functions/factorials.hpp>

namespace zephyl {

TEST(factorial_table, holds_the_double_next_to_each_factorial) {
  for (int n = 0; n <= FACTORIAL_LIMIT; ++n)
    EXPECT_EQ(factorial_table[n], boost::math::unchecked_factorial<double>(static_cast<unsigned>(n))) << n;
}

TEST(factorial_table, ends_with_the_largest_factorial_that_a_double_holds) {
  EXPECT_EQ(sizeof factorial_table / sizeof factorial_table[0], 171u);
  EXPECT_EQ(factorial_table[170], 7.257415615307999e+306);
}

}  // namespace zephyl
