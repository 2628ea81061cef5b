// The menu that a program puts together, item by item.
#pragma once

namespace zephyl {

constexpr int MENU_LIMIT = 100;     // items
constexpr int MENU_TEXT_SIZE = 40;  // of an item, with its 0
constexpr int MENU_TITLE_SIZE = 120;

struct TMenu {
  char text[MENU_LIMIT][MENU_TEXT_SIZE] = {};
  int label[MENU_LIMIT] = {};
  int count = 0;
  char title[MENU_TITLE_SIZE] = "";
};
extern TMenu menu;

void clear_menu();

}  // namespace zephyl
