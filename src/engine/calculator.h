// What the keys do: evaluate, clear, show a result.
#pragma once

#include "engine/compiled.h"

namespace zephyl {

// The evaluate key: compiles the entry line and, unless compile_only, runs it and shows the result.
// Returns true if a result was shown (no error stands and something was evaluated).
bool evaluate_expression(bool compile_only);
// The compiled form of the last evaluate_expression.
const TCompiled& last_compiled();

// The AC key.
void clear_calculator(bool redraw);

// Makes the result text from the answers; show: draws it; home: scrolled back to its start.
void show_result(bool show, bool home);
// After a change of mode or format: re-makes the text only if Ans is the one to show.
void refresh_result();

// Memories, stores, expressions, errors and settings as at the very start. For tests and for on_start.
void reset_engine();

}  // namespace zephyl
