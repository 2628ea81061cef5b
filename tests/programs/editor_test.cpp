#include "programs/editor.h"

#include <cstring>

#include "engine/state.h"
#include "support/calculator.h"

namespace zephyl {

namespace {

class editor : public calculator {
 protected:
  editor() {
    reset_program();
    reset_editor();
    rows_of_statement = [](int) { return 1; };
  }

  void add(std::initializer_list<int> codes) {
    for (const int code : codes) add_statement(code);
  }
  std::vector<int> numbers() const {
    std::vector<int> list;
    for (int i = 0; i < program.statement_count; ++i) list.push_back(program.statements[i].number);
    return list;
  }
  using TNumbers = std::vector<int>;
};

TEST_F(editor, statements_go_in_at_the_cursor) {
  add({CODE_END, CODE_STOP});
  select_statement(1);
  add({CODE_ELSE});
  EXPECT_EQ(numbers(), (TNumbers{STATEMENT_END, STATEMENT_ELSE, STATEMENT_STOP}));
  EXPECT_EQ(program.cursor, 2);
}

TEST_F(editor, every_code_has_its_statement) {
  EXPECT_EQ(statement_of_code(6), STATEMENT_IF);
  EXPECT_EQ(statement_of_code(107), STATEMENT_FUNC);
  EXPECT_EQ(statement_of_code(110), STATEMENT_TEXT);
  EXPECT_EQ(statement_of_code(417), STATEMENT_MENU_DISPLAY);
  EXPECT_EQ(statement_of_code(535), STATEMENT_DESCRIPTION);
  EXPECT_EQ(statement_of_code(1), -1);
}

TEST_F(editor, a_statement_keeps_only_the_operands_that_are_its_own) {
  new_statement.var0 = 5;
  new_statement.label = 3;
  new_statement.compare = 2;
  std::strcpy(new_statement.text, "words");
  add({CODE_LABEL, CODE_WHILE});
  EXPECT_EQ(program.statements[0].label, 3);
  EXPECT_EQ(program.statements[0].var0, 0);
  EXPECT_STREQ(program.statements[0].text, "");
  EXPECT_EQ(program.statements[1].compare, 2);
  EXPECT_EQ(program.statements[1].label, 0);
}

TEST_F(editor, an_expression_comes_from_the_entry_line_and_goes_back) {
  eval("1+2");
  add({CODE_EXPRESS});
  EXPECT_EQ(program.statements[0].key_count, 3);
  EXPECT_TRUE(state.fresh_flag);
  EXPECT_FALSE(entry_line.cursor_shown);
  eval("7");
  select_statement(0);
  take_expression_back();
  EXPECT_EQ(entry(), "1+2");
  EXPECT_EQ(entry_line.cursor, 3);
}

TEST_F(editor, without_an_expression_no_statement_is_added) {
  clear_entry_line();
  add({CODE_EXPRESS});
  EXPECT_EQ(program.statement_count, 0);
}

TEST_F(editor, the_first_line_of_a_function_is_its_own) {
  add({CODE_FUNC});
  select_statement(0);
  add({CODE_STOP});
  EXPECT_EQ(
      message(),
      "Error | Can't add statement here. The function statement must appear on the first line of a program.");
  EXPECT_EQ(program.statement_count, 1);
  select_statement(1);
  add({CODE_STOP});
  EXPECT_EQ(program.statement_count, 2);
  EXPECT_EQ(message(), "none");
}

TEST_F(editor, nothing_stands_before_a_description) {
  set_description("what it does");
  select_statement(0);
  add({CODE_STOP});
  EXPECT_EQ(message(),
            "Error | Can't add statement here. The program description statement must appear on the first "
            "line of a "
            "program.");
  add({CODE_FUNC});
  EXPECT_EQ(numbers(), (TNumbers{STATEMENT_FUNC, STATEMENT_DESCRIPTION}));
  select_statement(1);
  add({CODE_STOP});
  EXPECT_EQ(message(),
            "Error | Can't add statement here. The function statement and program description statement must "
            "appear on "
            "the first two lines of a program.");
}

TEST_F(editor, a_function_statement_stands_first_or_not_at_all) {
  add({CODE_STOP, CODE_FUNC});
  EXPECT_EQ(message(), "Error | A function statement must appear on the first line of a program.");
  EXPECT_EQ(numbers(), TNumbers{STATEMENT_STOP});
}

TEST_F(editor, a_second_function_statement_replaces_the_first) {
  add({CODE_FUNC});
  std::strcpy(new_statement.text, "C");
  select_statement(0);
  add({CODE_FUNC});
  EXPECT_EQ(program.statement_count, 1);
  EXPECT_STREQ(program.statements[0].text, "C");
}

TEST_F(editor, a_description_stands_on_the_first_lines) {
  add({CODE_STOP});
  set_description("late");
  EXPECT_EQ(message(),
            "Error | A program description statement must appear on the first line of a program or the "
            "second line of a "
            "program if a function statement is on the first line.");
  EXPECT_EQ(program.statement_count, 1);
}

TEST_F(editor, a_second_description_replaces_the_words_and_adds_nothing) {
  set_description("first");
  select_statement(0);
  set_description("second");
  EXPECT_STREQ(program.description, "second");
  EXPECT_EQ(program.statement_count, 1);
  EXPECT_EQ(message(), "none");
}

TEST_F(editor, the_hundredth_statement_is_refused) {
  for (int i = 0; i < STATEMENT_LIMIT; ++i) add_statement(CODE_STOP);
  EXPECT_EQ(program.statement_count, 99);
  EXPECT_EQ(message(), "none");
  add({CODE_STOP});
  EXPECT_EQ(message(), "Limit | Reached program size limit");
  EXPECT_EQ(program.statement_count, 99);
}

TEST_F(editor, a_full_function_refuses_other_arguments_too) {
  add({CODE_FUNC});
  for (int i = 1; i < STATEMENT_LIMIT; ++i) add_statement(CODE_STOP);
  std::strcpy(new_statement.text, "C");
  select_statement(0);
  add({CODE_FUNC});
  EXPECT_EQ(message(), "Limit | Reached program size limit");
  EXPECT_STREQ(program.statements[0].text, "");
}

TEST_F(editor, a_description_that_was_deleted_leaves_no_words_behind) {
  set_description("old words");
  select_statement(0);
  delete_statement();
  EXPECT_STREQ(program.description, "");
  set_description("first");
  add({CODE_STOP});
  delete_statement();
  EXPECT_STREQ(program.description, "first");
}

TEST_F(editor, of_two_descriptions_in_a_file_the_words_stay_with_the_other) {
  set_description("words");
  program.statements[program.statement_count++].number = STATEMENT_DESCRIPTION;
  select_statement(1);
  delete_statement();
  EXPECT_STREQ(program.description, "words");
}

TEST_F(editor, a_description_is_as_long_as_a_line_of_its_file) {
  set_description(std::string(STORED_DESCRIPTION_LIMIT, 'x'));
  EXPECT_EQ(std::strlen(program.description), STORED_DESCRIPTION_LIMIT);
  set_description(std::string(STORED_DESCRIPTION_LIMIT + 1, 'x'));
  EXPECT_EQ(std::strlen(program.description), STORED_DESCRIPTION_LIMIT);
}

TEST_F(editor, a_description_is_not_cut_in_the_middle_of_a_line_break) {
  const std::string to_the_break(STORED_DESCRIPTION_LIMIT - 1, 'x');
  set_description(to_the_break + "~~y");
  EXPECT_EQ(program.description, to_the_break);
  const std::string before_it(STORED_DESCRIPTION_LIMIT - 2, 'x');
  set_description(before_it + "~~y");
  EXPECT_EQ(program.description, before_it + "~~");
  set_description(before_it.substr(1) + "~~~~");
  EXPECT_EQ(program.description, before_it.substr(1) + "~~");
  set_description(std::string(2 * STORED_DESCRIPTION_LIMIT, '~'));
  EXPECT_EQ(std::strlen(program.description), STORED_DESCRIPTION_LIMIT - 1);
}

TEST_F(editor, a_built_in_program_stays_as_it_is) {
  program.built_in = true;
  add({CODE_STOP});
  EXPECT_EQ(message(), "Note | A built-in program can't be edited");
  EXPECT_EQ(program.statement_count, 0);
}

TEST_F(editor, a_function_notes_statements_that_it_can_not_use_after_each_one_added) {
  add({CODE_FUNC, CODE_TEXT});
  EXPECT_EQ(message().substr(0, 28), "Program Note | The program s");
  EXPECT_EQ(program.statement_count, 2);
  add({CODE_STOP});
  EXPECT_EQ(message().substr(0, 12), "Program Note");
}

TEST_F(editor, deleting_moves_the_later_statements_up) {
  add({CODE_IF, CODE_ELSE, CODE_END});
  select_statement(1);
  delete_statement();
  EXPECT_EQ(numbers(), (TNumbers{STATEMENT_IF, STATEMENT_END}));
  EXPECT_EQ(program.cursor, 1);
  delete_statement();
  EXPECT_EQ(program.cursor, 0);
  delete_statement();
  delete_statement();
  EXPECT_EQ(program.statement_count, 0);
  EXPECT_EQ(program.cursor, 0);
}

TEST_F(editor, behind_the_last_statement_there_is_nothing_to_delete) {
  add({CODE_STOP});
  delete_statement();
  EXPECT_EQ(program.statement_count, 1);
}

TEST_F(editor, the_cursor_stops_at_both_ends_and_stays_in_view) {
  for (int i = 0; i < 30; ++i) add_statement(CODE_STOP);
  EXPECT_EQ(program.cursor, 30);
  EXPECT_EQ(program.top, 23);
  move_statement_cursor(1);
  EXPECT_EQ(program.cursor, 30);
  move_statement_cursor(-10);
  EXPECT_EQ(program.cursor, 20);
  EXPECT_EQ(program.top, 20);
  move_statement_cursor(-100);
  EXPECT_EQ(program.cursor, 0);
  EXPECT_EQ(program.top, 0);
}

TEST_F(editor, long_expressions_take_rows_of_the_view) {
  rows_of_statement = [](int index) { return index == 5 ? 4 : 1; };
  for (int i = 0; i < 8; ++i) add_statement(CODE_STOP);
  select_statement(0);
  select_statement(6);
  EXPECT_EQ(program.top, 2);
}

}  // namespace

}  // namespace zephyl
