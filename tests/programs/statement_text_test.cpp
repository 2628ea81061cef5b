#include "programs/statement_text.h"

#include "programs/built_in_programs.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_fixture.h"

namespace zephyl {

class statement_texts : public programs {
 protected:
  std::string text_of(const std::vector<std::string>& listing, int index) {
    write_program("Test", listing);
    forget_programs();
    load_program("Test", false);
    return statement_text(index, NAMES_IN_WORDS);
  }
};

TEST_F(statement_texts, of_each_statement) {
  const std::vector<std::string> listing = {"1: if (A > 0)",
                                            "2: else",
                                            "3: end if",
                                            "4: while (Ans <> theta)",
                                            "5: end while",
                                            "6: loop n",
                                            "7: end loop n",
                                            "8: call Sub",
                                            "9: return call",
                                            "10: label Q",
                                            "11: goto label Q",
                                            "12: gosub label alpha",
                                            "13: return sub",
                                            "14: in r, \"radius\"",
                                            "15: in {A}",
                                            "16: out A (p), \"Area\"",
                                            "17: out Ans",
                                            "18: out [B] (p)",
                                            "19: fout A",
                                            "20: fout Ans",
                                            "21: in f3()",
                                            "22: in f9(), \"f(x)\"",
                                            "23: f1()",
                                            "24: text \"Hello\"",
                                            "25: error \"Wrong\"",
                                            "26: Menu \"Title\"",
                                            "27: Menu C, \"Item\"",
                                            "28: Menu Display",
                                            "29: Menu Clear",
                                            "30: stop",
                                            "31: break",
                                            "32: 2+A*3",
                                            "33: if (x <= Ans)",
                                            "34: end if"};
  write_program("Test", listing);
  load_program("Test", false);
  ASSERT_EQ(program.statement_count, static_cast<int>(listing.size()));
  for (std::size_t i = 0; i < listing.size(); ++i)
    EXPECT_EQ(statement_text(static_cast<int>(i), NAMES_IN_WORDS), listing[i]);
}

TEST_F(statement_texts, of_arguments) {
  EXPECT_EQ(text_of({"func(a,[B],{C},str2)"}, 0), "1: func(a,[B],{C},str2)");
  EXPECT_EQ(text_of({"func(no arguments)"}, 0), "1: func(no arguments)");
  EXPECT_EQ(text_of({"func(a)", "Program Description \"What it does.\""}, 1), "2: Program Description");
}

TEST_F(statement_texts, of_an_end_without_a_block) {
  EXPECT_EQ(text_of({"end"}, 0), "1: end ?");
  EXPECT_EQ(text_of({"if (A = 0)", "end", "end"}, 2), "3: end ?");
}

TEST_F(statement_texts, of_an_end_name_the_block_at_their_depth) {
  const std::vector<std::string> listing = {"while (A = 0)", "loop n", "if (A = 0)", "end", "end", "end"};
  EXPECT_EQ(text_of(listing, 3), "4: end if");
  EXPECT_EQ(text_of(listing, 4), "5: end loop n");
  EXPECT_EQ(text_of(listing, 5), "6: end while");
}

TEST_F(statement_texts, write_greek_letters_as_glyphs_where_they_are_drawn) {
  EXPECT_EQ(text_of({"loop theta"}, 0), "1: loop theta");
  EXPECT_EQ(statement_text(0, NAMES_IN_GLYPHS), std::string("1: loop ") + static_cast<char>(69 + 82));
}

TEST_F(statement_texts, of_numbers_out_of_range_are_words_too) {
  write_file_of("Test",
                "N: Test\r\nV: 2.7A\r\nI: 0\r\nC: 9\r\n0: 900\r\n1: -9\r\nI: 66\r\nI: 8\r\nL: -50\r\nI: "
                "4\r\n0: 500\r\n");
  load_program("Test", false);
  EXPECT_EQ(statement_text(0, NAMES_IN_WORDS), "1: if (Error ? Error)");
  EXPECT_EQ(statement_text(1, NAMES_IN_WORDS), "2: ");
  EXPECT_EQ(statement_text(2, NAMES_IN_WORDS), "3: goto label Error");
  EXPECT_EQ(statement_text(3, NAMES_IN_WORDS), "4: loop Error");
  EXPECT_EQ(statement_text(4, NAMES_IN_WORDS), "");
  EXPECT_EQ(statement_text(-1, NAMES_IN_WORDS), "");
  EXPECT_EQ(standing_error(), "");
}

TEST_F(statement_texts, of_all_built_in_programs_are_there) {
  for (const std::string& name : built_in_names()) {
    ASSERT_GT(load_program(name.c_str(), true), 0) << name;
    for (int i = 0; i < program.statement_count; ++i)
      EXPECT_GT(statement_text(i, NAMES_IN_WORDS).size(), 4u) << name << i;
  }
}

}  // namespace zephyl
