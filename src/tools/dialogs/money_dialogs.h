// The money solver and the schedule of a loan.
#pragma once

namespace zephyl {

// Edits and solves the values of tvm_state.
void show_tvm_solver();

// One row for each payment of tvm_state.
void show_amortization_schedule();

}  // namespace zephyl
