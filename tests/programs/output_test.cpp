// What programs show and write.

#include <sys/stat.h>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "platform/events.h"
#include "programs/output_files.h"
#include "programs/program_fixture.h"
#include "programs/programs.h"

namespace zephyl {

class output : public programs {
 protected:
  std::string written(const std::string& name = "Test") const {
    return file_content(folder_.file("programs/" + name + ".txt"));
  }
};

TEST_F(output, shows_name_and_value) {
  EXPECT_EQ(run_lines({"5->A", "out A"}), "A=5");
  EXPECT_EQ(run_lines({"1/3->x", "out x"}), "x=0.3333333333");
  EXPECT_EQ(run_lines({"2+3", "out Ans"}), "Ans=5");
  EXPECT_EQ(run_lines({"4->R3", "out R3"}), "R3=4");
  EXPECT_EQ(run_lines({"4->(theta)", "out theta"}), "theta=4");
}

TEST_F(output, shows_values_by_the_settings) {
  settings.numberFormat = FORMAT_FIXED;
  settings.decimalDigits = 2;
  EXPECT_EQ(run_lines({"5->A", "out A"}), "A=5.00");
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(run_lines({"1+2*(i)->A", "out A"}), "A=1.00+2.00i");
}

TEST_F(output, shows_sizes_and_texts) {
  EXPECT_EQ(run_lines({"{1,2,3}->{B}", "out {B}"}), "{B}=3 rows");
  EXPECT_EQ(run_lines({"initMatrix(2,3,1)->[C]", "out [C]"}), "[C]=2 by 3");
  EXPECT_EQ(run_lines({"\"Hello\"->str4", "out str4"}), "str4=Hello");
  EXPECT_EQ(run_lines({"{1,2}", "out Ans"}), "Ans=Result in List Answer");
  EXPECT_EQ(run_lines({"\"Hi\"", "out Ans"}), "Ans=Hi");
}

TEST_F(output, of_a_value_that_is_another_type_than_the_answer_is_the_value) {
  EXPECT_EQ(run_lines({"5->A", "{1,2}", "out A"}), "A=5");
}

TEST_F(output, of_what_is_undefined_is_an_error) {
  EXPECT_EQ(run_lines({"out {A}"}), "List Size Not Defined (line 1)");
  EXPECT_EQ(run_lines({"out [A]"}), "Matrix Size Not Defined (line 1)");
  EXPECT_EQ(run_lines({"fout {A}"}), "List Size Not Defined (line 1)");
}

TEST_F(output, the_label_stands_in_the_place_of_the_entry_line) {
  write_program("Test", {"5->A", "out A, \"Area\"", "out A", "1"});
  start("Test");
  go_on(2);
  EXPECT_STREQ(program_prompt_line(), "Area");
  go_on(1);
  EXPECT_STREQ(program_prompt_line(), "");
}

TEST_F(output, the_label_goes_when_the_run_ends) {
  run_lines({"5->A", "out A, \"Area\""});
  EXPECT_STREQ(program_prompt_line(), "");
  EXPECT_EQ(result(), "A=5");
}

TEST_F(output, pauses_until_a_key) {
  run_lines({"5->A", "out A (p), \"Area\"", "6->A", "out A"});
  EXPECT_EQ(result(), "A=5");
  EXPECT_TRUE(state.key_wait);
  EXPECT_TRUE(state.program_running);
  EXPECT_STREQ(program_prompt_line(), "Area");
  EXPECT_FALSE(on_idle());
  on_char('7');
  EXPECT_FALSE(state.key_wait);
  EXPECT_EQ(entry(), "") << "the key does nothing else";
  go_on();
  EXPECT_EQ(result(), "A=6");
  EXPECT_FALSE(state.program_running);
}

TEST_F(output, text_replaces_the_result_line) {
  EXPECT_EQ(run_lines({"5->A", "out A", "text \"Done (2)\""}), "Done (2)");
}

TEST_F(output, running_shows_and_goes) {
  write_program("Test", {"5->A", "6->A"});
  start("Test");
  EXPECT_EQ(result(), "Running...");
  go_on(1);
  EXPECT_EQ(result(), "Running...");
  go_on();
  EXPECT_EQ(result(), "");
}

// --- Files

TEST_F(output, fout_writes_lines_into_the_file_of_its_program) {
  run_lines({"5->A", "fout A", "1/4", "fout Ans", "{1,2}->{A}", "fout {A}", "initMatrix(2,3,1)->[B]",
             "fout [B]", "\"Hi\"->str1", "fout str1", "2->(alpha)", "fout alpha"});
  EXPECT_EQ(standing_error(), "");
  EXPECT_EQ(written(), "A=\t5\r\nAns=\t0.25\r\n{A}=\t2 rows\r\n[B]=\t2 by 3\r\nstr1=\tHi\r\nalpha=\t2\r\n");
}

TEST_F(output, fout_begins_its_file_anew_in_each_run) {
  run_lines({"5->A", "fout A"});
  run_lines({"6->A", "fout A"});
  EXPECT_EQ(written(), "A=\t6\r\n");
}

TEST_F(output, called_programs_have_files_of_their_own) {
  write_program("Sub", {"7->B", "fout B"});
  run_lines({"5->A", "fout A", "call Sub", "fout A", "call Sub"});
  EXPECT_EQ(written(), "A=\t5\r\nA=\t5\r\n");
  EXPECT_EQ(written("Sub"), "B=\t7\r\nB=\t7\r\n");
}

TEST_F(output, fout_writes_large_numbers_in_plain_text) {
  run_lines({"1e30->A", "fout A"});
  EXPECT_EQ(written(), "A=\t1e30\r\n");
}

TEST_F(output, fout_writes_whole_strings) {
  run_lines({"listToString(initList(900,65))->str1", "fout str1"});
  EXPECT_EQ(written(), "str1=\t" + std::string(900, 'A') + "\r\n");
}

TEST_F(output, fout_makes_nothing_global) {
  run_lines({"5->A", "fout A"});
  EXPECT_EQ(memory("A"), 0);
}

TEST_F(output, a_full_disk_leaves_whole_lines) {
  const std::string line = "A=\t11111\r\n";
  int cut_short = 0;
  for (int call = 0; call < 20; ++call) {
    write_program("Test", {"11111->A", "fout A", "fout A", "fout A", "7->A", "out A"});
    {
      const TFileFaults full_disk(CALL_HALVES, call);
      run_program("Test");
    }
    EXPECT_EQ(result(), "A=7") << "the program goes on";
    EXPECT_EQ(message(), "none");
    const std::string content = written();
    EXPECT_EQ(content.size() % line.size(), 0u) << content;
    cut_short += content.size() < 3 * line.size();
  }
  EXPECT_GE(cut_short, 3);
}

TEST_F(output, a_folder_that_is_read_only_is_no_error) {
  write_program("Test", {"5->A", "fout A", "out A"});
  folder_.give_up_root();
  ::chmod(folder_.file("programs").c_str(), 0555);
  run_program("Test");
  ::chmod(folder_.file("programs").c_str(), 0777);
  EXPECT_EQ(result(), "A=5");
  EXPECT_EQ(written(), "(no file)");
}

TEST_F(output, a_hundred_files_are_written_in_a_run) {
  for (int i = 0; i < 103; ++i) write_output(("P" + std::to_string(i)).c_str(), "line\r\n");
  close_output_files();
  EXPECT_EQ(written("P99"), "line\r\n");
  EXPECT_EQ(written("P100"), "(no file)");
}

// --- Errors of the program's own

TEST_F(output, error_reports_the_words_of_the_program) {
  EXPECT_EQ(run_lines({"1->A", "error \"No such side\""}), "No such side (line 2)");
  EXPECT_EQ(errors.error_code, ERR_PROGRAM_TEXT);
  EXPECT_EQ(run_lines({"error \"\""}), " (line 1)");
}

}  // namespace zephyl
