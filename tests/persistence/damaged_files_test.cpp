// State files and constants files that are cut, changed, huge or something else altogether: no crash, no
// hang, and nothing left half done.

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "persistence/constants.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "persistence/text_file.h"
#include "persistence/units.h"
#include "persistence/units_reader.h"
#include "plot/drawing.h"
#include "support/calculator.h"
#include "support/file_faults.h"
#include "support/states.h"
#include "support/whole_state.h"

namespace zephyl {

class damaged_files : public calculator {
 protected:
  damaged_files() { EXPECT_EQ(::chdir(folder_.path().c_str()), 0); }

  // A short file with a record of each kind.
  std::string small_state() {
    for (const char* text :
         {"1.5->A", "\"words\"->str1", "2.5->(Omega)", "x^(2)->f1(x)", "x+1->f1()", "{1,2.5}->{C}", "7/2"})
      eval(text);
    MatrixRecord& matrix = stores.matrices[0];
    matrix.defined = true;
    matrix.last_row = matrix.last_col = 1;
    matrix.cells[0][1] = 4.5;
    drawing_bitmap().set_pixel(3, 4, BLACK);
    drawing.drawing_used = true;
    check_filled_items();
    save_state("small.state");
    std::string content = file_content("small.state");
    // Of the drawing the beginning is enough: the whole is long and all alike.
    return content.substr(0, content.find("G: ") + 900);
  }

  static void load_text(const std::string& text) {
    TLineReader lines(text.data(), text.size());
    load_state(lines);
  }
  void read_constants(const std::string& text) {
    constant_table.count = 0;
    TLineReader lines(text.data(), text.size());
    read_units_text(lines);
    platform_.messages.clear();
  }

  TTestFolder folder_;
};

TEST_F(damaged_files, a_state_cut_at_each_byte) {
  const std::string whole = small_state();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    load_text(whole.substr(0, size));
    ASSERT_EQ(calculator_fault(), "") << "cut at " << size;
  }
}

TEST_F(damaged_files, a_state_with_each_byte_changed) {
  const std::string whole = small_state();
  for (const char byte : {'\0', '\r', '9', ':', '\xFF'}) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      std::string changed = whole;
      changed[at] = byte;
      load_text(changed);
      ASSERT_EQ(calculator_fault(), "") << "byte " << at << " changed to " << static_cast<int>(byte);
    }
    platform_.messages.clear();
  }
}

TEST_F(damaged_files, a_state_with_each_bit_changed) {
  const std::string whole = small_state();
  const std::size_t text_end = whole.find("G: ");
  for (std::size_t at = 0; at < text_end + 20; ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string changed = whole;
      changed[at] = static_cast<char>(changed[at] ^ 1 << bit);
      load_text(changed);
      ASSERT_EQ(calculator_fault(), "") << "bit " << bit << " of byte " << at;
    }
    platform_.messages.clear();
  }
}

TEST_F(damaged_files, a_state_with_lines_of_a_million_characters) {
  for (const char* start : {"W: 0:", "D: ", "R: 1:", "O: 15:", "", "S: ", "G"}) {
    load_text("R: 0:1.0\r\n" + (start + std::string(1000000, '3')) + "\r\nR: 1:1.0\r\n");
    ASSERT_EQ(calculator_fault(), "") << start;
    EXPECT_EQ(memory_array[1].re, 0.0) << start;
  }
}

TEST_F(damaged_files, a_state_of_a_hundred_thousand_records) {
  std::string text;
  for (int i = 0; i < 100000; ++i)
    text += "RIXYEKPMLWO"[i % 11] + (": " + std::to_string(i % 1003)) + ":5:7:1,\r\n";
  load_text(text);
  EXPECT_EQ(calculator_fault(), "");
}

TEST_F(damaged_files, a_state_in_another_form) {
  const std::string whole = small_state();
  std::string line_feeds, doubled, wide;
  for (const char c : whole) {
    if (c != '\r') line_feeds += c;
    doubled += c == '\n' ? "\n\r\n" : std::string(1, c);
    wide += std::string(1, c) + std::string(1, '\0');
  }
  for (const std::string& form : {"\xEF\xBB\xBF" + whole, line_feeds, doubled, wide, whole + whole}) {
    load_text(form);
    ASSERT_EQ(calculator_fault(), "");
  }
}

TEST_F(damaged_files, a_byte_order_mark_hides_the_first_record_only) {
  load_text("\xEF\xBB\xBFV: 9.9\r\nR: 0:1.5\r\n");
  EXPECT_EQ(memory_array[0].re, 1.5);
  EXPECT_EQ(message(), "none");
}

TEST_F(damaged_files, a_picture_or_a_program_is_no_state) {
  const std::string before = state_text();
  for (const char* text : {"GIF87a\x02", "\x89PNG\r\n\x1A\n", "#!/bin/sh\nrm -rf\n", "{\"R\": 1}"})
    load_text(text);
  EXPECT_EQ(calculator_fault(), "");
  EXPECT_EQ(memory_array[0].re, 0.0);
}

TEST_F(damaged_files, constants_cut_at_each_byte) {
  restart(folder_.path());
  const std::string whole = file_content("constants.const").substr(0, 700);
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    read_constants(whole.substr(0, size));
    ASSERT_EQ(calculator_fault(), "") << "cut at " << size;
  }
}

TEST_F(damaged_files, constants_with_each_byte_changed) {
  const std::string whole =
      "Prop: Zeta\r\nUnit: 139, bit, Bit, 1.0, 0.0\r\nCons: a, m/s, 1.5e-3\r\nCons: b, , 2\r\n";
  const TUnitTable built_in = unit_table;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string changed = whole;
      changed[at] = static_cast<char>(byte);
      unit_table = built_in;
      read_constants(changed);
      ASSERT_EQ(state_fault(), "") << "byte " << at << " changed to " << byte;
    }
  }
  EXPECT_EQ(calculator_fault(), "");
}

TEST_F(damaged_files, constants_with_endless_lines_and_a_hundred_thousand_of_them) {
  read_constants("Cons: " + std::string(1000000, 'c') + "\r\nCons: a, , 1\r\n");
  EXPECT_EQ(constant_count(), 0);
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "Cons: c" + std::to_string(i) + ", , 1\r\n";
  read_constants(text);
  EXPECT_EQ(constant_count(), CONSTANT_LIMIT);
  EXPECT_EQ(calculator_fault(), "");
}

}  // namespace zephyl
