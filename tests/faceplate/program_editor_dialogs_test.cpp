// The dialogs of statements: arguments, descriptions, and what each remembers.

#include "engine/memory.h"
#include "faceplate/dialogs/statement_operands.h"
#include "faceplate/program_editor.h"
#include "programs/dialogs/program_description.h"
#include "programs/editor.h"
#include "programs/function_header.h"
#include "programs/program.h"

namespace zephyl {
namespace {

constexpr int ARGUMENTS = 6;
constexpr int COUNT_CONTROL = 0;
constexpr int type_of(int argument) { return 1 + 2 * argument; }
constexpr int name_of(int argument) { return 2 + 2 * argument; }

class statement_dialogs : public program_editor {
 protected:
  void SetUp() override { make("Work"); }

  void tap_arguments(const TAnswer& user) {
    select_statement(0);
    answer(user);
    tap_blue(7);
  }
  // What is selected in the controls of the dialog that the key opens; it is cancelled.
  std::vector<int> selections(int key, bool blue = false) {
    std::vector<int> rows;
    answer([&rows](TDialog& dialog) {
      for (const TControl& control : dialog.controls) {
        if (control.kind == CONTROL_COMBO || control.kind == CONTROL_LIST) rows.push_back(control.selected);
        if (control.kind == CONTROL_CHECK) rows.push_back(control.checked);
      }
    });
    if (blue) tap_key(EDITOR_BLUE_KEY);
    tap_key(key);
    return rows;
  }
  using TRowNumbers = std::vector<int>;
  // in, out, fout and loop, each with another variable.
  void add_statements_of_variables() {
    answer_rows({2, 5});
    tap_key(10);
    answer_rows({30});
    tap_key(11);
    answer_rows({31});
    tap_blue(11);
    answer_rows({32});
    tap_key(7);
  }
};

// --- Arguments

TEST_F(statement_dialogs, so_many_arguments_can_be_named_as_are_counted) {
  tap_arguments([](TDialog& dialog) {
    EXPECT_EQ(dialog[COUNT_CONTROL].rows.front(), "0 (no arguments)");
    for (const int count : {0, 3, 6, 1}) {
      choose_row(dialog, COUNT_CONTROL, count);
      for (int argument = 0; argument < ARGUMENTS; ++argument) {
        EXPECT_EQ(dialog[type_of(argument)].enabled, argument < count) << count << ' ' << argument;
        EXPECT_EQ(dialog[name_of(argument)].enabled, argument < count) << count << ' ' << argument;
      }
    }
    EXPECT_FALSE(choose_row(dialog, type_of(1), 1));
  });
  EXPECT_EQ(listing(), TListing{});
}

TEST_F(statement_dialogs, each_type_has_its_names) {
  const struct {
    const char* type;
    std::size_t count;
    const char *first, *last;
  } types[] = {{"Value", 90, "R0", "(Omega)"},
               {"List", 10, "{A}", "{J}"},
               {"Matrix", 10, "[A]", "[J]"},
               {"Function", 9, "f1()", "f9()"},
               {"String", 9, "str1", "str9"}};
  tap_arguments([&types](TDialog& dialog) {
    choose_row(dialog, COUNT_CONTROL, 1);
    for (int row = 0; row < 5; ++row) {
      choose_row(dialog, name_of(0), 5);
      choose_row(dialog, type_of(0), row);
      EXPECT_EQ(selected_text(dialog[type_of(0)]), types[row].type);
      EXPECT_EQ(dialog[name_of(0)].rows.size(), types[row].count) << types[row].type;
      EXPECT_EQ(dialog[name_of(0)].rows.front(), types[row].first);
      EXPECT_EQ(dialog[name_of(0)].rows.back(), types[row].last);
      EXPECT_EQ(dialog[name_of(0)].selected, 0) << types[row].type;
      EXPECT_EQ(dialog[name_of(1)].rows.size(), 90u);  // the others are as they were
    }
  });
}

TEST_F(statement_dialogs, six_arguments_of_all_types) {
  tap_arguments([](TDialog& dialog) {
    choose_row(dialog, COUNT_CONTROL, 6);
    const int rows[ARGUMENTS][2] = {{0, 89}, {1, 9}, {2, 0}, {3, 8}, {4, 8}, {0, 0}};
    for (int argument = 0; argument < ARGUMENTS; ++argument) {
      EXPECT_TRUE(choose_row(dialog, type_of(argument), rows[argument][0]));
      EXPECT_TRUE(choose_row(dialog, name_of(argument), rows[argument][1]));
    }
    accept_dialog(dialog);
  });
  EXPECT_EQ(listing(), TListing{"func(Omega,{J},[A],f9(),str9,R0)"});
  leave();
  TFunctionHeader header;
  EXPECT_EQ(read_function_header("Work", header), 6);
  const int slots[ARGUMENTS] = {SLOT_ALPHA + 27, SLOT_LIST_A + 9, SLOT_MATRIX_A,
                                SLOT_F1 + 8,     SLOT_STR1 + 8,   SLOT_R0};
  for (int argument = 0; argument < ARGUMENTS; ++argument) EXPECT_EQ(header.slots[argument], slots[argument]);
}

TEST_F(statement_dialogs, arguments_are_remembered_also_those_behind_the_count) {
  tap_arguments([](TDialog& dialog) {
    choose_row(dialog, COUNT_CONTROL, 2);
    choose_row(dialog, type_of(1), 2);
    choose_row(dialog, name_of(1), 3);
    choose_row(dialog, COUNT_CONTROL, 1);
    accept_dialog(dialog);
  });
  EXPECT_EQ(listing(), TListing{"func(R0)"});
  select_statement(0);
  const TRowNumbers rows = selections(7, true);
  EXPECT_EQ(TRowNumbers(rows.begin(), rows.begin() + 5), (TRowNumbers{1, 0, 0, 2, 3}));
}

// --- What is remembered

TEST_F(statement_dialogs, a_condition_opens_where_a_condition_was_left) {
  answer_rows({11, 4, 13});
  tap_key(6);
  add_statements_of_variables();
  EXPECT_EQ(selections(6), (TRowNumbers{11, 4, 13}));
  EXPECT_EQ(selections(8), (TRowNumbers{11, 4, 13}));
}

TEST_F(statement_dialogs, each_opens_on_its_own_choice) {
  add_statements_of_variables();
  answer_rows({8});
  tap_key(13);
  answer_rows({6});
  tap_key(15);
  answer_rows({3});
  tap_blue(17);
  EXPECT_EQ(selections(10), (TRowNumbers{2, 5, 0}));
  EXPECT_EQ(selections(11), (TRowNumbers{30, 0, 0}));
  EXPECT_EQ(selections(11, true), TRowNumbers{31});
  EXPECT_EQ(selections(7), TRowNumbers{32});
  EXPECT_EQ(selections(12), TRowNumbers{8});
  EXPECT_EQ(selections(13, true), TRowNumbers{8});
  EXPECT_EQ(selections(15), (TRowNumbers{6, 0}));
  EXPECT_EQ(selections(15, true), TRowNumbers{6});
  EXPECT_EQ(selections(17, true), TRowNumbers{3});
}

TEST_F(statement_dialogs, a_cancelled_choice_is_not_remembered) {
  const auto choose_and_cancel = [this](int key) {
    answer([](TDialog& dialog) {
      for (int i = 0; i < dialog.count(); ++i)
        if (!choose_row(dialog, i, 1)) set_checked(dialog, i, true);
    });
    tap_key(key);
  };
  for (const int key : {6, 7, 10, 11, 12, 15}) {
    const TRowNumbers before = selections(key);
    choose_and_cancel(key);
    EXPECT_EQ(selections(key), before) << key;
  }
  EXPECT_EQ(listing(), TListing{});
}

// --- Descriptions

class descriptions : public statement_dialogs {
 protected:
  // Writes it in the dialog, on the first line. What the dialog held before is returned.
  std::string describe(const std::string& text) {
    std::string before;
    select_statement(0);
    answer([&](TDialog& dialog) {
      EXPECT_EQ(dialog.id(), 182);
      before = dialog[0].text;
      set_text(dialog, 0, text);
      accept_dialog(dialog);
    });
    tap_key(5);
    return before;
  }
};

TEST_F(descriptions, line_ends_and_tildes_come_back_as_they_were_written) {
  for (const std::string& text :
       {std::string("one line"), std::string("two\nlines"), std::string("~"), std::string("a~b~~c"),
        std::string("\n\n~\n\n"), std::string("~\n~"), std::string("end\n"), std::string("")}) {
    describe(text);
    EXPECT_EQ(describe(text), text);
    tap_key(EDITOR_FIRST_TAB);
    edit("Work");
    EXPECT_EQ(describe(text), text) << "read back";
  }
  EXPECT_EQ(program.statement_count, 1);
}

TEST_F(descriptions, are_stored_on_one_line) {
  describe("1~\n2");
  leave();
  EXPECT_EQ(file_of("Work"), "N: Work\r\nV: 2.7A\r\nI: 59\r\nZ: 1\a~~2\r\n");
}

TEST_F(descriptions, have_a_length) {
  describe(std::string(DESCRIPTION_LIMIT + 50, 'x'));
  EXPECT_EQ(std::string(program.description), std::string(DESCRIPTION_LIMIT, 'x'));
}

TEST_F(descriptions, too_many_line_ends_are_told_and_nothing_is_lost) {
  const std::string fits(DESCRIPTION_LIMIT - 3, 'x');  // and five bytes more
  select_statement(0);
  answer([&](TDialog& dialog) {
    set_text(dialog, 0, fits.substr(3) + "\n\n\n\n\n\n");
    accept_dialog(dialog);
    EXPECT_FALSE(dialog.closed());
    EXPECT_EQ(message(), "Limit | The description is too long by 1");
    set_text(dialog, 0, fits + "\n\n\n");
    accept_dialog(dialog);
    EXPECT_TRUE(dialog.closed());
  });
  tap_key(5);
  EXPECT_EQ(message(), "none");
  leave();
  edit("Work");
  EXPECT_EQ(describe(""), fits + "\n\n\n");
}

TEST_F(descriptions, may_be_cancelled_when_too_long) {
  describe("short");
  select_statement(0);
  answer([&](TDialog& dialog) {
    set_text(dialog, 0, std::string(DESCRIPTION_LIMIT, '\n'));
    accept_dialog(dialog);
    cancel_dialog(dialog);
  });
  tap_key(5);
  EXPECT_STREQ(program.description, "short");
}

TEST_F(descriptions, a_deleted_one_is_not_offered_again) {
  describe("old words");
  select_statement(0);
  tap_key(4);
  EXPECT_EQ(listing(), TListing{});
  EXPECT_EQ(describe("new"), "");
}

TEST_F(descriptions, stand_behind_the_arguments_of_a_function) {
  tap_arguments([](TDialog& dialog) { accept_dialog(dialog); });
  answer([](TDialog& dialog) {
    set_text(dialog, 0, "what it does");
    accept_dialog(dialog);
  });
  tap_key(5);
  EXPECT_EQ(listing(), (TListing{"func(no arguments)", "Program Description"}));
  EXPECT_EQ(message(), "none");
}

}  // namespace
}  // namespace zephyl
