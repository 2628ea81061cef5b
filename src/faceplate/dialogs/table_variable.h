// Dialogs 204 "Select Matrix Variable" and 211 "Select List Variable": recall and store of whole tables.
#pragma once

namespace zephyl {

// The token that the choice enters; -1 on Cancel.
int choose_matrix_token();
int choose_list_token();

}  // namespace zephyl
