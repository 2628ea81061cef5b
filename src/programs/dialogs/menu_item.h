#pragma once

namespace zephyl {

struct TMenu;

// "Select Menu Item", with the menu's title if it has one: the row chosen, -1 for Cancel.
int select_menu_item(const TMenu& menu);

}  // namespace zephyl
