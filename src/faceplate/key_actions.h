// What keys do that several modes have. Each takes the number of its key and gives the key's result
// (key_path.h). When they are refused stands in the key maps.
#pragma once

namespace zephyl {

// The number of the key is its token.
int enter_key_number(int key);
// Nothing, and the shifts end.
int do_nothing(int key);

int toggle_blue(int key);
int toggle_orange(int key);

// With the blue shift the cursor moves by a fifth of the line.
int delete_at_cursor(int key);
int move_left(int key);
int move_right(int key);

int evaluate(int key);
// Evaluates and, if a result was shown, hands it to the statistics, the matrix or the list: of the screen
// that shows, from COMP_MODE of that which the fourth tab leads to.
int evaluate_and_enter(int key);
int all_clear(int key);
int scroll_left(int key);
int scroll_right(int key);

int remove_last_stats_entry(int key);

// The dialogs of the memory key and of the things to clear.
int recall_variable(int key);
int store_variable(int key);
int choose_items_to_clear(int key);

// The catalogs: the token that was chosen goes into the expression.
int enter_catalog_function(int key);
int enter_system_variable(int key);

// The run key; in program edit it saves the program first.
int run_or_stop_program(int key);

// The six tabs of the screens with digit keys, from key 43 on.
int press_calculator_tab(int key);

}  // namespace zephyl
