// Somebody who answers dialogs, for the tests of those that keys open.
#pragma once

#include <functional>
#include <vector>

#include "faceplate/face.h"
#include "platform/dialog.h"

namespace zephyl {

using TAnswer = std::function<void(TDialog&)>;

class selection_dialogs : public face {
 protected:
  void answer(const TAnswer& user) { platform_.dialog_answers.push_back(user); }
  // Chooses rows of the first controls and presses OK.
  void answer_rows(const std::vector<int>& rows) {
    answer([rows](TDialog& dialog) {
      for (int i = 0; i < static_cast<int>(rows.size()); ++i)
        EXPECT_TRUE(choose_row(dialog, i, rows[static_cast<std::size_t>(i)])) << "control " << i;
      accept_dialog(dialog);
    });
  }
};

}  // namespace zephyl
