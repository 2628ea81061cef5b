// A visit to a dialog: a calculator that starts afresh in a folder of its own and holds something of everything goes
// the dialog's road in the scripted driver, somebody works the dialog, and what was before is compared with what is
// behind.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zephyl {

class TDialog;
struct TDialogRoad;

// Works the dialog by the acts of platform/dialog.h. One that is left open is cancelled.
using TDialogUser = std::function<void(TDialog&)>;

struct TVisit {
  bool opened = false;
  // "TITLE | TEXT" of the boxes that came once the dialog was open.
  std::vector<std::string> messages;
  // All that the calculator keeps, in memory and in files: when the dialog opened, when its user left it (open or not),
  // and when the road was gone.
  std::string before, left, behind;
  // What is wrong with the calculator afterwards; "" if nothing is.
  std::string fault;
};

// next_user: works the dialogs that open above or behind the one visited; without one those are cancelled.
TVisit visit(const TDialogRoad& road, const TDialogUser& user, const TDialogUser& next_user = nullptr);

// What differs between two states, for messages: the lines of `behind` that `before` doesn't have.
std::string difference(const std::string& before, const std::string& behind);

}  // namespace zephyl
