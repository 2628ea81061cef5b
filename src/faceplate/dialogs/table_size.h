// Dialogs 210 "Select List Size" and 198 "Select Matrix Size": the size of what the table screen shows.
#pragma once

namespace zephyl {

void show_list_size();
void show_matrix_size();

}  // namespace zephyl
