// How names sort in tables and dialogs: by letter, ignoring case, the same on every system.
#pragma once

namespace zephyl {

// Below, at or above 0 as `a` stands before, at or behind `b`. Only the letters A to Z have a case.
int compare_ignoring_case(const char* a, const char* b);

}  // namespace zephyl
