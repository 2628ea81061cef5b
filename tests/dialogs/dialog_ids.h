// The ids of the dialogs that the source makes.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace zephyl {

struct TDialogIds {
  std::set<int> ids;
  // "file: the words" of what makes a dialog by an id that isn't written there as a number or a constant.
  std::vector<std::string> unreadable;
};

TDialogIds dialog_ids_of_source();

}  // namespace zephyl
