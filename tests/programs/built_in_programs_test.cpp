#include "programs/built_in_programs.h"

#include <cstring>

#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_fixture.h"

namespace zephyl {

namespace {

struct TBuiltIn {
  const char* name;
  const char* version;
  int statements;
};

// As they are documented: programs of users call some of them by name.
constexpr TBuiltIn built_in[] = {{"2 by 2 Matrix", "1.1", 16},       {"3 by 3 Matrix", "1.1", 27},
                                 {"Amortization", "1.1", 5},         {"Coulomb's Law", "1.1", 6},
                                 {"Cycle of Pendulum", "1.1", 4},    {"Delta to Y, Y to Delta", "1.1", 26},
                                 {"Draw Example 1", "2.5", 10},      {"Draw Example 2", "2.6", 58},
                                 {"Draw Example 3", "2.6", 34},      {"Fractals", "2.7", 49},
                                 {"Fuction Matrix", "1.1", 12},      {"Future Value", "1.1", 6},
                                 {"Gamma Function", "1.1", 23},      {"Greatest Common Divisor", "1.1", 17},
                                 {"Heron's Formula", "1.1", 7},      {"LCR Parallel Impedance", "1.1", 7},
                                 {"LCR Series Impedance", "1.1", 7}, {"Least Common Multiple", "1.1", 15},
                                 {"Log of Random Base", "1.1", 5},   {"Parallel Resistance", "2.4", 16},
                                 {"Polar to Rectangular", "1.1", 7}, {"Present Value", "1.1", 6},
                                 {"Prime Factors", "2.4", 52},       {"Quadratic Equation", "1.1", 21},
                                 {"Rectangular to Polar", "1.1", 7}, {"Resonate Frequency", "1.1", 5},
                                 {"Root Finder", "1.1", 33},         {"Select Matrix", "1.1", 48},
                                 {"Simpson's Rule", "2.4", 37},      {"Symmetric Matrix", "1.1", 12},
                                 {"Triangle Solutions", "2.4", 66},  {"Volume of Cylinder", "1.1", 5}};

}  // namespace

class built_in_programs : public programs {};

TEST_F(built_in_programs, are_these) {
  std::vector<std::string> names;
  for (const TBuiltIn& row : built_in) names.push_back(row.name);
  EXPECT_EQ(built_in_names(), names);
}

TEST_F(built_in_programs, have_their_version_and_number_of_statements) {
  for (const TBuiltIn& row : built_in) {
    std::size_t size = 0;
    const char* const text = find_built_in(row.name, size);
    ASSERT_NE(text, nullptr) << row.name;
    const std::string version = std::string("V: ") + row.version + "\r\n";
    EXPECT_EQ(std::string(text, version.size()), version) << row.name;
    EXPECT_EQ(load_program(row.name, true), row.statements) << row.name;
    EXPECT_TRUE(program.built_in);
  }
}

TEST_F(built_in_programs, describe_themselves_first_if_at_all) {
  for (const TBuiltIn& row : built_in) {
    ASSERT_GT(load_program(row.name, true), 0);
    for (int i = 1; i < program.statement_count; ++i)
      EXPECT_NE(program.statements[i].number, STATEMENT_DESCRIPTION) << row.name << i;
    const bool has_description = program.statements[0].number == STATEMENT_DESCRIPTION;
    EXPECT_EQ(std::strlen(program.description) > 10, has_description) << row.name;
  }
}

TEST_F(built_in_programs, end_with_a_program_that_only_closes_the_text) {
  const std::string text(built_in_text(), built_in_size());
  const std::string closing = "N: End Programs\r\nV: 1.1\r\nI: 59\r\n";
  const std::size_t at = text.rfind("N: ");
  EXPECT_EQ(text.compare(at, closing.size(), closing), 0);
  EXPECT_EQ(load_program("End Programs", true), -1);
}

TEST_F(built_in_programs, are_found_by_their_whole_name) {
  std::size_t size = 1;
  EXPECT_EQ(find_built_in("Fractal", size), nullptr);
  EXPECT_EQ(size, 0u);
  EXPECT_EQ(find_built_in("fractals", size), nullptr);
  EXPECT_EQ(find_built_in("", size), nullptr);
  EXPECT_EQ(load_program("Nobody", true), -1);
}

TEST_F(built_in_programs, have_lines_that_end_in_cr_lf) {
  const std::string text(built_in_text(), built_in_size());
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
    ASSERT_EQ(text[at - 1], '\r') << at;
}

TEST_F(built_in_programs, skip_the_version_test) {
  EXPECT_EQ(load_program("Fractals", true), 49);
  EXPECT_EQ(message(), "none");
}

}  // namespace zephyl
