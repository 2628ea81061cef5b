// The statistics data: rows of x and, with two variables, y. A row is complete when its last number is in.
#pragma once

namespace zephyl {

constexpr int STATS_LIMIT = 999;  // rows

struct TStats {
  double x[STATS_LIMIT + 5] = {};
  double y[STATS_LIMIT + 5] = {};
  int count = 0;          // complete rows
  bool next_is_x = true;  // the next number entered belongs to x
};
extern TStats stats;

bool two_variable_stats();

// Called whenever rows or their number change; the list view of an open dialog sets it.
extern void (*stats_changed)();
// Opens the list of the data; what dispStatsList() calls. Nothing until a dialog is put in.
extern void (*show_stats_list)();

void clear_stats();

// Adds a number to the row being entered. From a program or an expression: ERR_STATS_SIZE at STATS_LIMIT
// rows. Nothing while an error stands.
void add_stats_value(double value);
// What the keyboard enters: the current answer. Where it can't be added a box says why. Returns whether it
// was.
bool enter_answer_into_stats();

void delete_stats_row(int row);
// With no rows only the next number belongs to x again.
void delete_last_stats_row();

// One or two variables, 0 or 1; the next number belongs to x. Writing the system variable statsVar does the
// same.
void set_stats_variables(int statsVar);

// The number of rows, 0 to STATS_LIMIT, once a whole column has been filled; the next number belongs to x.
void set_stats_count(int count);

// The title's text for a program name: "%s (n=%d)" with ", x" or ", y" for the number expected next.
void stats_title(char* out, int size, const char* program);

void reset_stats();

// The statistics values and their clearing by clrMem(, rx, ry, entStats( and the like.
void register_stats();

}  // namespace zephyl
