// What the keys of the list screen do to the list it shows and to the place in it.
#pragma once

namespace zephyl {

// Moves the view by rows, down if positive; it ends at the first and at the last screenful.
void scroll_list(int rows);

// The element at the cursor; one past the end of the list goes back to the first.
int list_cursor();

// A tap on a line of the screen, from 0: the cursor goes there if the list reaches so far.
void choose_list_line(int line);

// Shows another list, 0 to ANSWER_RECORD.
void choose_list(int list);

// Gives the list that shows `size` elements, 1 to LIST_LIMIT; new ones are 0.
void set_list_size(int size);

// The current answer goes to the element at the cursor, which moves on. A box says why where it can't.
// Nothing while an error stands or the list is undefined. Returns whether it was entered.
bool enter_answer_into_list();

}  // namespace zephyl
