// Named constants: a table that the user can add to and delete from. It lives in the file "constants.const"
// beside the program; where that isn't there, the built-in constants are written to it.
#pragma once

namespace zephyl {

constexpr int CONSTANT_LIMIT = 102;

struct Constant {
  char name[40] = "";
  char unit[20] = "";
  char value[40] = "";  // a number's text, with a point
};

// Sorted by name, ignoring case.
struct TConstantTable {
  Constant rows[CONSTANT_LIMIT];
  int count = 0;
};
extern TConstantTable constant_table;

int constant_count();
// i from 0 to constant_count() - 1.
const char* constant_name(int i);
const char* constant_unit(int i);
const char* constant_value(int i);
// Of a name, ignoring case; -1 if there is none.
int find_constant(const char* name);

// Builds the tables of units and constants from the built-in text and then, unless `use_built_in`, takes the
// constants from the user's file if there is one; otherwise writes that file. Faults in the texts are told in
// message boxes.
void load_units_and_constants(bool use_built_in);

// Adds a constant with the real part of Ans as its value, to ten decimals. Commas in the texts become blanks.
// False, with a message, if the table is full or the name is taken.
bool add_constant(const char* name, const char* unit);
// Asks first. Deleting the last one brings the built-in constants back.
void delete_constant(const char* name);

}  // namespace zephyl
