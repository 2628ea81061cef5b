// The list of statements on the screen of program edit.
#pragma once

#include "platform/surface.h"

namespace zephyl {

void paint_program_list(TSurface& surface);

// A tap on a listed statement selects it and repaints; elsewhere it does nothing.
void select_tapped_statement(int x, int y);

// Tells the editor how many rows a statement takes.
void register_program_list();

}  // namespace zephyl
