#include "programs/program_reader.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "engine/errors.h"
#include "engine/memory.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/program_files.h"
#include "programs/program_fixture.h"
#include "programs/program_writer.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

constexpr const char* LATER_RELEASE =
    "Program Error | The program requires a more recent version of Zephyl in order to load.";

std::string lines_of(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) text.append(line).append("\r\n");
  return text;
}

}  // namespace

class program_reader : public programs {
 protected:
  // Loads a file with these lines behind its name and version.
  int load(std::initializer_list<const char*> lines) {
    return load_text("N: P\r\nV: 2.7A\r\n" + lines_of(lines));
  }
  int load_text(const std::string& text) {
    write_file_of("P", text);
    forget_programs();
    return load_program("P", false);
  }
  static const ProgramStatement& statement(int index) { return program.statements[index]; }
};

TEST_F(program_reader, begins_a_statement_with_each_number) {
  EXPECT_EQ(load({"I: 12", "I: 2"}), 2);
  EXPECT_EQ(program.statement_count, 2);
  EXPECT_EQ(statement(0).number, STATEMENT_STOP);
  EXPECT_EQ(statement(1).number, STATEMENT_ELSE);
  EXPECT_STREQ(program.name, "P");
  EXPECT_FALSE(program.built_in);
}

TEST_F(program_reader, fills_the_latest_statement_in_any_order) {
  ASSERT_EQ(load({"I: 10", "P: 1", "T: sum", "0: 12", "L: -3", "1: 7", "C: 5", "F: 8", "E: 33,36,", "I: 1"}),
            2);
  EXPECT_EQ(statement(0).pause, 1);
  EXPECT_STREQ(statement(0).text, "sum");
  EXPECT_EQ(statement(0).var0, 12);
  EXPECT_EQ(statement(0).var1, 7);
  EXPECT_EQ(statement(0).label, -3);
  EXPECT_EQ(statement(0).compare, 5);
  EXPECT_EQ(statement(0).func, 8);
  EXPECT_EQ(statement(0).key_count, 2);
  EXPECT_EQ(statement(0).keys[0], 33);
  EXPECT_EQ(statement(0).keys[1], 36);
}

TEST_F(program_reader, begins_each_statement_with_zeros) {
  ASSERT_EQ(load({"I: 10", "P: 1", "T: sum", "0: 12", "I: 10"}), 2);
  EXPECT_EQ(statement(1).pause, 0);
  EXPECT_STREQ(statement(1).text, "");
  EXPECT_EQ(statement(1).var0, 0);
}

TEST_F(program_reader, leaves_a_token_without_its_comma_out) {
  ASSERT_EQ(load({"I: 11", "E: 33,36,34"}), 1);
  EXPECT_EQ(statement(0).key_count, 2);
  ASSERT_EQ(load({"I: 11", "E: 33"}), 1);
  EXPECT_EQ(statement(0).key_count, 0);
}

TEST_F(program_reader, takes_a_hundred_tokens_at_most) {
  std::string keys = "E: ";
  for (int i = 0; i < 130; ++i) keys += std::to_string(i + 1) + ',';
  ASSERT_EQ(load({"I: 11", keys.c_str()}), 1);
  EXPECT_EQ(statement(0).key_count, KEY_LIMIT);
  EXPECT_EQ(statement(0).keys[KEY_LIMIT - 1], KEY_LIMIT);
}

TEST_F(program_reader, keeps_tokens_of_unit_conversions) {
  ASSERT_EQ(load({"I: 11", "E: 33,33280,65535,"}), 1);
  EXPECT_EQ(statement(0).keys[1], 33280);
  EXPECT_EQ(statement(0).keys[2], 65535);
}

TEST_F(program_reader, makes_tokens_out_of_range_ones_without_a_meaning) {
  ASSERT_EQ(load({"I: 11", "E: 65536,-1,99999999999999999999,x,,"}), 1);
  EXPECT_EQ(statement(0).key_count, 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(statement(0).keys[i], 0) << i;
}

TEST_F(program_reader, replaces_the_tokens_of_a_second_line) {
  ASSERT_EQ(load({"I: 11", "E: 33,34,35,", "E: 28,"}), 1);
  EXPECT_EQ(statement(0).key_count, 1);
  EXPECT_EQ(statement(0).keys[0], 28);
}

TEST_F(program_reader, cuts_texts_without_a_word) {
  ASSERT_EQ(load({"I: 13", "T: abcdefghijklmnopqrstuvwxyz"}), 1);
  EXPECT_STREQ(statement(0).text, "abcdefghijklmnopqrstuvwx");
  EXPECT_EQ(message(), "none");
}

TEST_F(program_reader, reads_numbers_as_the_c_library_does) {
  ASSERT_EQ(load({"I: 10", "0:  +12x", "1: abc", "L: 99999999999"}), 1);
  EXPECT_EQ(statement(0).var0, 12);
  EXPECT_EQ(statement(0).var1, 0);
  EXPECT_EQ(statement(0).label, 32767);
}

TEST_F(program_reader, pauses_where_the_first_character_is_one) {
  ASSERT_EQ(load({"I: 10", "P: 1", "I: 10", "P: 10", "I: 10", "P: 2", "I: 10", "P: x1"}), 4);
  EXPECT_EQ(statement(0).pause, 1);
  EXPECT_EQ(statement(1).pause, 1);
  EXPECT_EQ(statement(2).pause, 0);
  EXPECT_EQ(statement(3).pause, 0);
}

TEST_F(program_reader, reads_the_description) {
  ASSERT_EQ(load({"I: 59", "Z: Sums~~all", "I: 12"}), 2);
  EXPECT_STREQ(program.description, "Sums~~all");
}

TEST_F(program_reader, takes_a_description_without_its_line_as_empty) {
  ASSERT_EQ(load({"I: 59", "I: 12"}), 2);
  EXPECT_STREQ(program.description, "");
}

TEST_F(program_reader, reads_a_description_up_to_the_longest_line) {
  const std::string longest(1055, 'd');
  ASSERT_EQ(load({"I: 59", ("Z: " + longest).c_str(), "I: 12"}), 2);
  EXPECT_EQ(program.description, longest);
}

TEST_F(program_reader, ends_at_a_line_that_is_too_long) {
  const std::string too_long = "Z: " + std::string(1056, 'd');
  ASSERT_EQ(load({"I: 12", too_long.c_str(), "I: 12"}), 1);
}

TEST_F(program_reader, ends_at_an_empty_line) { EXPECT_EQ(load({"I: 12", "", "I: 12", "X: 1"}), 1); }

TEST_F(program_reader, fails_on_another_letter) {
  EXPECT_EQ(load({"I: 12", "X: 1"}), -1);
  EXPECT_EQ(program.statement_count, 0);
  EXPECT_STREQ(program.name, "");
  EXPECT_FALSE(errors.error_flag);
  EXPECT_EQ(message(), "none");
  for (const char* line : {"2: 1", "A: 1", "Y: 1", ";: 1"}) EXPECT_EQ(load({"I: 12", line}), -1) << line;
}

TEST_F(program_reader, fails_on_a_line_of_another_form) {
  for (const char* line : {"i: 12", "I:12", "I 12", "I", " I: 12", "[: 1", "/: 1"})
    EXPECT_EQ(load({line}), -1) << line;
}

TEST_F(program_reader, fails_on_a_line_of_another_letter_in_front_of_the_first_statement) {
  EXPECT_EQ(load({"X: 1", "I: 12"}), -1);
  EXPECT_EQ(load({"T: nobody's", "I: 12"}), 1);
  EXPECT_STREQ(statement(0).text, "");
}

TEST_F(program_reader, refuses_a_later_version_by_its_first_three_characters) {
  EXPECT_EQ(load_text(lines_of({"N: P", "V: 2.8", "I: 12"})), -1);
  EXPECT_EQ(message(), LATER_RELEASE);
  EXPECT_EQ(standing_error(), "Program Version Error");
  clear_error();
  EXPECT_EQ(load_text(lines_of({"N: P", "V: 2.7Z", "I: 12"})), 1);
  EXPECT_EQ(load_text(lines_of({"N: P", "V: 2.69", "I: 12"})), 1);
  EXPECT_EQ(load_text(lines_of({"N: P", "V: 2", "I: 12"})), 1);
  EXPECT_EQ(load_text(lines_of({"N: P", "I: 12"})), 1) << "no version at all";
  EXPECT_EQ(load_text(lines_of({"N: P", "V: 3.0", "I: 12"})), -1);
}

TEST_F(program_reader, refuses_statements_of_a_later_release) {
  EXPECT_EQ(load({"I: 67"}), 1);
  EXPECT_EQ(message(), "none");
  EXPECT_EQ(load({"I: 12", "I: 68"}), -1);
  EXPECT_EQ(message(), LATER_RELEASE);
  EXPECT_EQ(standing_error(), "Program Version Error");
  EXPECT_EQ(program.statement_count, 0);
}

TEST_F(program_reader, takes_99_statements) {
  std::string text = "N: P\r\nV: 2.7A\r\n";
  for (int i = 0; i < 99; ++i) text += "I: 12\r\n";
  EXPECT_EQ(load_text(text), 99);
  EXPECT_EQ(load_text(text + "I: 12\r\n"), -1);
  EXPECT_EQ(message(), LATER_RELEASE);
  EXPECT_EQ(standing_error(), "Program Version Error");
}

TEST_F(program_reader, fails_without_a_line) {
  EXPECT_EQ(load_text(""), -1);
  EXPECT_EQ(load_text("\r\nI: 12\r\n"), -1);
  EXPECT_EQ(load_program("Not there", false), -1);
  EXPECT_EQ(load_text("N: P\r\n"), 0) << "a program without statements";
}

TEST_F(program_reader, takes_a_last_line_without_its_end) { EXPECT_EQ(load_text("I: 12\r\nI: 1"), 2); }

TEST_F(program_reader, drops_line_feeds_wherever_they_stand) { EXPECT_EQ(load_text("I: 1\n2\r\nI: 1\r"), 2); }

TEST_F(program_reader, reads_what_remains_of_a_file_cut_at_every_byte) {
  const std::string whole = lines_of({"N: Cut", "V: 2.7A", "I: 59", "Z: A description.", "I: 9", "T: radius",
                                      "0: 53", "I: 11", "E: 117,853,9,31,843,931,", "I: 0", "C: 2", "0: 11",
                                      "1: 2", "I: 10", "0: 32", "P: 1", "I: 1"});
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const int count = load_text(whole.substr(0, size));
    EXPECT_LE(count, 6) << size;
    EXPECT_EQ(program.statement_count, std::max(count, 0)) << size;
    EXPECT_FALSE(errors.error_flag) << size;
  }
  EXPECT_EQ(load_text(whole), 6);
}

TEST_F(program_reader, returns_to_the_place_of_the_program_named_last) {
  load({"I: 12", "I: 12", "I: 12"});
  EXPECT_EQ(program.cursor, 0);
  remember_place("P", 2, 1);
  load({"I: 12", "I: 12", "I: 12"});
  EXPECT_EQ(program.cursor, 2);
  EXPECT_EQ(program.top, 1);
  load({"I: 12"});
  EXPECT_EQ(program.cursor, 1) << "the empty line behind the last statement at most";
  remember_place("Q", 2, 1);
  load({"I: 12", "I: 12", "I: 12"});
  EXPECT_EQ(program.cursor, 0);
}

// --- Writing

class program_writer : public program_reader {};

TEST_F(program_writer, writes_only_fields_that_are_not_zero) {
  ASSERT_EQ(load({"I: 9", "T: radius", "0: 53", "I: 11", "E: 117,853,", "I: 0", "C: 2", "0: 11", "1: -2",
                  "L: 4", "F: 1", "I: 10", "P: 1", "I: 1"}),
            5);
  EXPECT_EQ(program_file_text(program),
            lines_of({"N: P", "V: 2.7A", "I: 9", "T: radius", "0: 53", "I: 11", "E: 117,853,", "I: 0", "C: 2",
                      "0: 11", "1: -2", "L: 4", "F: 1", "I: 10", "P: 1", "I: 1"}));
}

TEST_F(program_writer, puts_the_description_behind_its_number) {
  ASSERT_EQ(load({"I: 59", "T: t", "Z: Sums."}), 1);
  EXPECT_EQ(program_file_text(program), lines_of({"N: P", "V: 2.7A", "I: 59", "Z: Sums.", "T: t"}));
}

TEST_F(program_writer, writes_what_reads_back_identically) {
  const std::string text = lines_of({"N: P", "V: 2.7A", "I: 17", "T: \x18rs", "I: 59", "Z: d~~d", "I: 11",
                                     "E: 1,2,33280,", "I: 40", "I: 51", "T: a", "L: 3", "I: 66"});
  ASSERT_EQ(load_text(text), 6);
  ASSERT_TRUE(save_program());
  EXPECT_EQ(file_content(program_path_of("P")), text);
}

TEST_F(program_writer, writes_no_program_without_a_name_and_no_built_in_one) {
  load({"I: 12"});
  program.name[0] = 0;
  EXPECT_TRUE(save_program());
  EXPECT_EQ(folder_.names(), "programs");
  ASSERT_GT(load_program("Heron's Formula", true), 0);
  EXPECT_TRUE(save_program());
  EXPECT_EQ(file_content(program_path_of("Heron's Formula")), "(no file)");
}

TEST_F(program_writer, remembers_the_place) {
  load({"I: 12", "I: 12", "I: 12"});
  program.cursor = 2;
  program.top = 1;
  save_program();
  forget_programs();
  load_program("P", false);
  EXPECT_EQ(program.cursor, 2);
  EXPECT_EQ(program.top, 1);
}

TEST_F(program_writer, makes_the_folder_of_programs) {
  load({"I: 12"});
  ASSERT_TRUE(delete_program("P"));
  ::rmdir(folder_.file("programs").c_str());
  EXPECT_TRUE(save_program());
  EXPECT_EQ(load_program("P", false), 1);
}

TEST_F(program_writer, leaves_the_old_file_where_the_new_one_cannot_be_written) {
  load({"I: 12"});
  save_program();
  const std::string old = file_content(program_path_of("P"));
  program.statement_count = 0;
  for (int call = 0; call < 6; ++call) {
    const TFileFaults full_disk(CALL_FAILS, call);
    save_program();
    const std::string now = file_content(program_path_of("P"));
    EXPECT_TRUE(now == old || now == "N: P\r\nV: 2.7A\r\n") << call;
  }
}

TEST_F(program_writer, never_leaves_half_a_file_behind) {
  load({"I: 12", "I: 12"});
  save_program();
  const std::string old = file_content(program_path_of("P"));
  program.statement_count = 1;
  const std::string fresh = program_file_text(program);
  for (int call = 0; dies_at_call(call, [] { save_program(); }); ++call) {
    const std::string now = file_content(program_path_of("P"));
    EXPECT_TRUE(now == old || now == fresh) << call;
  }
}

TEST_F(program_writer, says_that_a_folder_is_read_only_and_keeps_the_file) {
  load({"I: 12"});
  folder_.give_up_root();
  ::chmod(folder_.file("programs").c_str(), 0555);
  program.statement_count = 0;
  EXPECT_FALSE(save_program());
  EXPECT_EQ(message(), "Program Error | The program can't be saved: P");
  EXPECT_EQ(file_content(program_path_of("P")), "N: P\r\nV: 2.7A\r\nI: 12\r\n");
  ::chmod(folder_.file("programs").c_str(), 0777);
}

}  // namespace zephyl
