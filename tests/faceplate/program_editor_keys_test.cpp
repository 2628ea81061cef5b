// The keys of the program editor: what each adds, what it asks, and when it refuses.

#include <algorithm>
#include <random>

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/display.h"
#include "faceplate/program_editor.h"
#include "programs/editor.h"
#include "programs/program.h"

namespace zephyl {
namespace {

constexpr int DESCRIPTION_KEY = 5;
constexpr int FUNC_KEY = 7;  // with the blue shift
constexpr int EXPRESSION_KEY = 16;
constexpr int MENU_KEY = 17;  // with the blue shift

// A key that adds a statement, the rows that are chosen in its dialogs, the boxes that are ticked, and what
// is written after them.
struct TEditorKey {
  int key;
  bool blue;
  int code;
  std::vector<std::vector<int>> dialogs;
  std::vector<std::string> ticks;
  std::string text;
  std::string statement;
};

const TEditorKey editor_keys[] = {
    {6, false, CODE_IF, {{11, 3, 0}}, {}, "", "if (A > 0)"},
    {6, true, CODE_ELSE, {}, {}, "", "else"},
    {7, false, CODE_LOOP, {{49}}, {}, "", "loop n"},
    {7, true, CODE_FUNC, {{2, 0, 10, 1, 2}}, {}, "", "func(A,{C})"},
    {8, false, CODE_WHILE, {{0, 1, 12}}, {}, "", "while (Ans <> A)"},
    {8, true, CODE_ERROR, {}, {}, "Bad value", "error \"Bad value\""},
    {9, false, CODE_END, {}, {}, "", "end ?"},
    {9, true, CODE_BREAK, {}, {}, "", "break"},
    {10, false, CODE_IN, {{1, 2}}, {}, "", "in C"},
    {10, false, CODE_IN, {{5, 2}}, {"Custom Prompt?"}, "Side", "in [C], \"Side\""},
    {10, true, CODE_TEXT, {}, {}, "Ready", "text \"Ready\""},
    {11, false, CODE_OUT, {{0}}, {}, "", "out Ans"},
    {11, false, CODE_OUT, {{11}}, {"Pause?"}, "", "out A (p)"},
    {11, false, CODE_OUT, {{111}}, {"Text Label?"}, "Name", "out str1, \"Name\""},
    {11, false, CODE_OUT, {{62}}, {"Pause?", "Text Label?"}, "small", "out z (p), \"small\""},
    {11, true, CODE_FOUT, {{91}}, {}, "", "fout {A}"},
    {11, true, CODE_FOUT, {{0}}, {}, "", "fout Ans"},
    {12, false, CODE_LABEL, {{25}}, {}, "", "label Z"},
    {12, true, CODE_RETURN_SUB, {}, {}, "", "return sub"},
    {13, false, CODE_GOTO, {{16}}, {}, "", "goto label Q"},
    {13, true, CODE_GOSUB, {{0}}, {}, "", "gosub label A"},
    {14, false, CODE_CALL, {{0}}, {}, "", "call Helper"},
    {14, true, CODE_RETURN_CALL, {}, {}, "", "return call"},
    {15, false, CODE_IN_FUNCTION, {{2}}, {}, "", "in f3()"},
    {15, false, CODE_IN_FUNCTION, {{8}}, {"Custom Prompt?"}, "f of x", "in f9(), \"f of x\""},
    {15, true, CODE_FUNCTION, {{0}}, {}, "", "f1()"},
    {16, false, CODE_EXPRESS, {}, {}, "", "1+2"},
    {17, false, CODE_STOP, {}, {}, "", "stop"},
    {17, true, CODE_MENU_DISPLAY, {{0}}, {}, "", "Menu Display"},
    {17, true, CODE_MENU_ITEM, {{1}, {3}}, {}, "Cube", "Menu D, \"Cube\""},
    {17, true, CODE_MENU_TITLE, {{2}}, {}, "Volume of", "Menu \"Volume of\""},
    {17, true, CODE_MENU_CLEAR, {{3}}, {}, "", "Menu Clear"},
    {5, false, CODE_DESCRIPTION, {{}}, {}, "", "Program Description"},
};

bool asks(const TEditorKey& row) { return !row.dialogs.empty() || !row.text.empty(); }
bool is_description(const TEditorKey& row) { return row.code == CODE_DESCRIPTION; }

bool is_function_listing(const TListing& lines) {
  return !lines.empty() && lines[0].compare(0, 5, "func(") == 0;
}

class program_editor_keys : public program_editor {
 protected:
  void SetUp() override {
    write_program("Helper", {"out A"});
    eval("1+2");
    make("Work");
  }

  void tap(const TEditorKey& row) {
    if (row.blue) tap_key(EDITOR_BLUE_KEY);
    tap_key(row.key);
  }
  // Its dialogs get their answers, up to the one of that number.
  void answer_dialogs(const TEditorKey& row, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
      answer([rows = row.dialogs[i], ticks = row.ticks](TDialog& dialog) {
        for (std::size_t control = 0; control < rows.size(); ++control)
          EXPECT_TRUE(choose_row(dialog, static_cast<int>(control), rows[control])) << dialog.title;
        for (const std::string& tick : ticks)
          EXPECT_TRUE(set_checked(dialog, find_control(dialog, tick), true)) << tick;
        accept_dialog(dialog);
      });
  }
  void add(const TEditorKey& row) {
    answer_dialogs(row, row.dialogs.size());
    tap(row);
    if (row.text.empty()) return;
    EXPECT_TRUE(state.alpha_active) << row.statement;
    type(row.text + "\r");
  }
  // No dialog and no entry opens for it, and it adds nothing.
  void expect_refused(const TEditorKey& row, const std::string& box) {
    const TListing before = listing();
    platform_.dialogs.clear();
    tap(row);
    EXPECT_EQ(message(), box) << row.statement;
    EXPECT_EQ(message(), "none") << row.statement;
    EXPECT_TRUE(platform_.dialogs.empty()) << row.statement;
    EXPECT_FALSE(state.alpha_active) << row.statement;
    EXPECT_EQ(listing(), before) << row.statement;
    EXPECT_EQ(shifts(), "") << row.statement;
  }
  // A calculator begins anew with each row: programs are forgotten with their choices.
  void begin_again(const std::string& name) {
    leave();
    restart(folder_.path());
    eval("1+2");
    make(name);
  }
};

TEST_F(program_editor_keys, each_adds_its_statement) {
  int number = 0;
  for (const TEditorKey& row : editor_keys) {
    begin_again("W" + std::to_string(number++));
    add(row);
    EXPECT_EQ(listing(), TListing{row.statement});
    EXPECT_EQ(program.statements[0].number, statement_of_code(row.code)) << row.statement;
    EXPECT_EQ(message(), "none") << row.statement;
    EXPECT_EQ(shifts(), "") << row.statement;
    EXPECT_FALSE(state.alpha_active) << row.statement;
    EXPECT_EQ(program.cursor, 1) << row.statement;
  }
}

TEST_F(program_editor_keys, all_codes_have_a_key) {
  std::vector<int> codes;
  for (const TEditorKey& row : editor_keys)
    if (std::find(codes.begin(), codes.end(), row.code) == codes.end()) codes.push_back(row.code);
  EXPECT_EQ(codes.size(), 27u);
  for (const int code : codes) EXPECT_GE(statement_of_code(code), 0) << code;
}

TEST_F(program_editor_keys, a_cancelled_dialog_adds_nothing) {
  for (const TEditorKey& row : editor_keys)
    for (std::size_t answered = 0; answered < row.dialogs.size(); ++answered) {
      platform_.dialogs.clear();
      answer_dialogs(row, answered);
      tap(row);
      EXPECT_EQ(platform_.dialogs.size(), answered + 1) << row.statement;
      EXPECT_EQ(listing(), TListing{}) << row.statement;
      EXPECT_FALSE(state.alpha_active) << row.statement;
      EXPECT_EQ(shifts(), "") << row.statement;
    }
}

TEST_F(program_editor_keys, a_cancelled_text_adds_nothing) {
  for (const TEditorKey& row : editor_keys) {
    if (row.text.empty()) continue;
    answer_dialogs(row, row.dialogs.size());
    tap(row);
    EXPECT_TRUE(state.alpha_active) << row.statement;
    type(row.text + "\x1B");
    EXPECT_FALSE(state.alpha_active) << row.statement;
    EXPECT_EQ(listing(), TListing{}) << row.statement;
  }
}

TEST_F(program_editor_keys, an_empty_text_is_waited_for) {
  tap_blue(10);
  type("\r");
  EXPECT_TRUE(state.alpha_active);
  type("Go\r");
  EXPECT_EQ(listing(), TListing{"text \"Go\""});
}

// Texts of statements take 15 characters, those of menus 22.
TEST_F(program_editor_keys, texts_have_their_length) {
  const std::string many = "abcdefghijklmnopqrstuvwxyz";
  tap_blue(10);
  type(many + "\r");
  answer_rows({2});
  tap_blue(MENU_KEY);
  type(many + "\r");
  EXPECT_EQ(listing(), (TListing{"text \"abcdefghijklmno\"", "Menu \"abcdefghijklmnopqrstuv\""}));
}

TEST_F(program_editor_keys, without_a_tick_the_text_of_before_is_not_taken_over) {
  const TEditorKey& with_prompt = editor_keys[9];
  add(with_prompt);
  answer([](TDialog& dialog) {
    set_checked(dialog, find_control(dialog, "Custom Prompt?"), false);
    accept_dialog(dialog);
  });
  tap_key(10);
  EXPECT_EQ(listing(), (TListing{"in [C], \"Side\"", "in [C]"}));
}

// --- Refusals, before anything is asked

TEST_F(program_editor_keys, a_full_program_refuses_before_it_asks) {
  add_stops(STATEMENT_LIMIT);
  tap_key(2);  // not behind the last line
  for (const TEditorKey& row : editor_keys)
    if (asks(row)) expect_refused(row, "Limit | Reached program size limit");
  EXPECT_EQ(program.statement_count, STATEMENT_LIMIT);
}

TEST_F(program_editor_keys, a_full_program_refuses_statements_that_ask_nothing) {
  add_stops(STATEMENT_LIMIT);
  for (const TEditorKey& row : editor_keys)
    if (!asks(row)) expect_refused(row, "Limit | Reached program size limit");
}

TEST_F(program_editor_keys, a_full_function_keeps_its_arguments) {
  answer_rows({0});
  tap_blue(FUNC_KEY);
  add_stops(STATEMENT_LIMIT - 1);
  select_statement(0);
  expect_refused(editor_keys[3], "Limit | Reached program size limit");
}

TEST_F(program_editor_keys, a_full_program_lets_its_description_be_written_anew) {
  set_description("old");
  add_stops(STATEMENT_LIMIT - 1);
  answer([](TDialog& dialog) {
    set_text(dialog, 0, "new");
    accept_dialog(dialog);
  });
  select_statement(0);
  tap_key(DESCRIPTION_KEY);
  EXPECT_STREQ(program.description, "new");
  EXPECT_EQ(program.statement_count, STATEMENT_LIMIT);
  EXPECT_EQ(message(), "none");
}

TEST_F(program_editor_keys, nothing_but_arguments_stands_before_those_of_a_function) {
  answer_rows({0});
  tap_blue(FUNC_KEY);
  select_statement(0);
  for (const TEditorKey& row : editor_keys)
    if (row.code != CODE_FUNC)
      expect_refused(row,
                     "Error | Can't add statement here. The function statement must appear on the first line "
                     "of a program.");
}

TEST_F(program_editor_keys, only_a_function_statement_stands_before_a_description) {
  set_description("words");
  select_statement(0);
  for (const TEditorKey& row : editor_keys)
    if (row.code != CODE_FUNC && !is_description(row))
      expect_refused(
          row,
          "Error | Can't add statement here. The program description statement must appear on the first "
          "line of a program.");
}

TEST_F(program_editor_keys, nothing_stands_between_a_function_statement_and_its_description) {
  answer_rows({0});
  tap_blue(FUNC_KEY);
  set_description("words");
  select_statement(1);
  for (const TEditorKey& row : editor_keys)
    if (!is_description(row))
      expect_refused(
          row,
          "Error | Can't add statement here. The function statement and program description statement "
          "must appear on the first two lines of a program.");
}

TEST_F(program_editor_keys, arguments_and_descriptions_belong_on_the_first_lines) {
  add_stops(2);
  for (const TEditorKey& row : editor_keys) {
    if (row.code == CODE_FUNC)
      expect_refused(row, "Error | A function statement must appear on the first line of a program.");
    if (is_description(row))
      expect_refused(
          row,
          "Error | A program description statement must appear on the first line of a program or the second "
          "line of a program if a function statement is on the first line.");
  }
}

TEST_F(program_editor_keys, a_statement_goes_on_the_second_line_of_a_function) {
  answer_rows({0});
  tap_blue(FUNC_KEY);
  tap_key(17);
  EXPECT_EQ(listing(), (TListing{"func(no arguments)", "stop"}));
  EXPECT_EQ(message(), "none");
}

TEST_F(program_editor_keys, a_function_statement_is_put_before_a_program) {
  add_stops(2);
  select_statement(0);
  answer_rows({1, 0, 10});
  tap_blue(FUNC_KEY);
  EXPECT_EQ(listing(), (TListing{"func(A)", "stop", "stop"}));
  select_statement(0);
  answer_rows({1, 0, 11});
  tap_blue(FUNC_KEY);
  EXPECT_EQ(listing(), (TListing{"func(B)", "stop", "stop"}));
}

TEST_F(program_editor_keys, what_a_function_can_not_use_is_noted_and_stays) {
  answer_rows({0});
  tap_blue(FUNC_KEY);
  tap_blue(10);
  type("Hi\r");
  const std::string note = message();
  EXPECT_EQ(note.substr(0, 64), "Program Note | The program statements Call, In, In f(), Rtn call");
  EXPECT_NE(note.find("the 'Pause?' and Text 'Label?' options are ignored."), std::string::npos);
  EXPECT_EQ(listing(), (TListing{"func(no arguments)", "text \"Hi\""}));
  tap_key(17);
  EXPECT_EQ(message(), note);
  tap_key(4);  // behind the last line: nothing to delete
  EXPECT_EQ(message(), "none");
}

// --- Built-in programs

class built_in_editor : public program_editor_keys {
 protected:
  void SetUp() override {
    eval("1+2");
    choose(EDIT_PROGRAM, "Volume of Cylinder", true);
    ASSERT_EQ(program.statement_count, 5);
  }
};

TEST_F(built_in_editor, keys_that_add_or_delete_show_the_note) {
  for (const TEditorKey& row : editor_keys) expect_refused(row, "Note | A built-in program can't be edited");
  tap_key(4);
  EXPECT_EQ(message(), "Note | A built-in program can't be edited");
  EXPECT_EQ(program.statement_count, 5);
}

TEST_F(built_in_editor, the_expression_key_is_quiet_where_there_is_none) {
  clear_entry_line();
  tap_key(EXPRESSION_KEY);
  EXPECT_EQ(message(), "none");
}

TEST_F(built_in_editor, its_lines_can_be_walked_and_its_expressions_taken) {
  tap_keys({3, 3, 3});
  EXPECT_EQ(program.cursor, 3);
  tap_key(2);
  EXPECT_EQ(program.cursor, 2);
  tap_blue(3);
  EXPECT_EQ(program.cursor, 5);
  select_statement(3);
  tap_key(EXPRESSION_KEY);  // still shifted
  EXPECT_EQ(entry(), "(pi)r^(2)*h > V");
  EXPECT_EQ(message(), "none");
}

TEST_F(built_in_editor, it_runs) {
  tap_key(0);
  EXPECT_TRUE(state.program_running);
  EXPECT_EQ(state.calcMode, COMP_MODE);
  EXPECT_EQ(message(), "none");
}

// --- Expressions

TEST_F(program_editor_keys, an_empty_line_is_no_expression) {
  clear_entry_line();
  tap_key(EXPRESSION_KEY);
  EXPECT_EQ(listing(), TListing{});
  EXPECT_EQ(message(), "none");
}

TEST_F(program_editor_keys, the_longest_expression_fits) {
  std::string digits(EXPRESSION_LIMIT, '7');
  clear_entry_line();
  leave();
  type(digits);
  edit("Work");
  tap_key(EXPRESSION_KEY);
  EXPECT_EQ(program.statements[0].key_count, EXPRESSION_LIMIT);
  EXPECT_EQ(listing(), TListing{digits});
}

TEST_F(program_editor_keys, an_expression_that_was_added_is_no_longer_being_written) {
  leave();
  type("5+");
  EXPECT_TRUE(entry_line.cursor_shown);
  edit("Work");
  const TRect line = {LINE_LEFT, ENTRY_LINE_Y, LINE_RIGHT, ENTRY_LINE_Y + LINE_HEIGHT - 1};
  const std::vector<TColour> with_cursor = pixels(line);
  tap_key(EXPRESSION_KEY);
  EXPECT_EQ(listing(), TListing{"5+"});
  EXPECT_FALSE(entry_line.cursor_shown);
  EXPECT_NE(pixels(line), with_cursor);
  leave();
  EXPECT_EQ(entry(), "5+");
  type("8");
  EXPECT_EQ(entry(), "8");
}

TEST_F(program_editor_keys, an_expression_is_changed_on_the_line_and_put_back) {
  tap_key(EXPRESSION_KEY);
  leave();
  eval("99");
  edit("Work");
  select_statement(0);
  tap_blue(EXPRESSION_KEY);
  EXPECT_EQ(shifts(), "");
  leave();
  type("3");
  EXPECT_EQ(entry(), "1+23");
  edit("Work");
  select_statement(0);
  tap_key(EXPRESSION_KEY);
  tap_key(4);
  EXPECT_EQ(listing(), TListing{"1+23"});
}

TEST_F(program_editor_keys, only_expressions_come_back_to_the_line) {
  add_stops(1);
  select_statement(0);
  tap_blue(EXPRESSION_KEY);
  EXPECT_EQ(entry(), "1+2");
  select_statement(1);
  tap_blue(EXPRESSION_KEY);
  EXPECT_EQ(entry(), "1+2");
}

// --- Moving and deleting

TEST_F(program_editor_keys, the_cursor_goes_by_one_and_by_ten) {
  add_stops(25);
  tap_key(2);
  EXPECT_EQ(program.cursor, 24);
  tap_blue(2);
  EXPECT_EQ(program.cursor, 14);
  EXPECT_EQ(shifts(), "blue ");  // several pages can be turned
  tap_key(2);
  EXPECT_EQ(program.cursor, 4);
  tap_key(2);
  EXPECT_EQ(program.cursor, 0);
  tap_key(3);
  EXPECT_EQ(program.cursor, 10);
  tap_keys({EDITOR_BLUE_KEY, 3});
  EXPECT_EQ(program.cursor, 11);
  tap_keys({EDITOR_BLUE_KEY, 3, 3});
  EXPECT_EQ(program.cursor, 25);
}

TEST_F(program_editor_keys, the_delete_key_takes_the_line_of_the_cursor) {
  tap_key(6);
  tap_key(9);
  tap_key(17);
  tap_key(EXPRESSION_KEY);
  EXPECT_EQ(listing(), (TListing{"end ?", "stop", "1+2"}));
  select_statement(1);
  tap_key(4);
  EXPECT_EQ(listing(), (TListing{"end ?", "1+2"}));
  EXPECT_EQ(program.cursor, 1);
  tap_key(4);
  EXPECT_EQ(program.cursor, 0);
  tap_keys({4, 4});
  EXPECT_EQ(listing(), TListing{});
}

// Whatever keys are tapped and however their dialogs are answered, the program can be shown, and comes back
// from its file as it was.
TEST_F(program_editor_keys, any_keys_make_a_program_that_can_be_read_again) {
  std::mt19937 random(20240101);
  const auto below = [&random](std::size_t limit) { return static_cast<int>(random() % limit); };
  const TAnswer somehow = [&](TDialog& dialog) {
    for (int control = 0; control < dialog.count(); ++control) {
      if (!dialog[control].rows.empty()) choose_row(dialog, control, below(dialog[control].rows.size()));
      set_checked(dialog, control, below(2) == 0);
      set_text(dialog, control, std::string(static_cast<std::size_t>(below(1200)), "~\na\r"[below(4)]));
    }
    if (below(4) > 0) accept_dialog(dialog);
  };
  for (int round = 0; round < 6; ++round) {
    make("R" + std::to_string(round));
    for (int i = 0; i < 150; ++i) {
      platform_.dialog_answers.assign(3, somehow);
      tap_key(1 + below(17));  // all but the run key and the tabs
      if (state.alpha_active) type(below(5) == 0 ? "\x1B" : "Some ~ text\r\x1B");
      ASSERT_FALSE(state.alpha_active);
      ASSERT_LE(program.statement_count, STATEMENT_LIMIT);
      ASSERT_TRUE(program.cursor >= 0 && program.cursor <= program.statement_count);
      ASSERT_TRUE(program.top >= 0 && program.top <= program.cursor);
    }
    state.blue_shift = false;
    platform_.dialog_answers.clear();
    const TListing lines = listing();
    const std::string description = program.description;
    leave();
    restart(folder_.path());
    edit("R" + std::to_string(round) + (is_function_listing(lines) ? "(" : ""));
    EXPECT_EQ(listing(), lines);
    EXPECT_EQ(program.description, description);
    leave();
    eval("1+2");
  }
}

TEST_F(program_editor_keys, an_error_of_the_calculator_does_not_disturb_the_list) {
  eval("1/0");
  tap_key(17);
  EXPECT_EQ(listing(), TListing{"stop"});
  EXPECT_TRUE(errors.error_flag);
}

}  // namespace
}  // namespace zephyl
