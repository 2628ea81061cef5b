#include "faceplate/dialogs/stats_list.h"

#include <algorithm>

#include "engine/format.h"
#include "engine/state.h"
#include "faceplate/dialogs/running.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

std::vector<TColumn> columns() {
  const int width = two_variable_stats() ? 94 : 120;
  std::vector<TColumn> headings = {{"", 30}, {"x Data", width}};
  if (two_variable_stats()) headings.push_back({"y Data", width});
  return headings;
}

std::string number(double value) {
  return format_number(value, settings.numberFormat, settings.decimalDigits, settings.baseType, false, false);
}

std::vector<std::string> rows() {
  if (stats.count == 0) return {"----\tNo Stats Data"};
  std::vector<std::string> texts;
  for (int i = 0; i < stats.count; ++i) {
    texts.push_back(std::to_string(i + 1) + "\t" + number(stats.x[i]));
    if (two_variable_stats()) texts.back() += "\t" + number(stats.y[i]);
  }
  return texts;
}

void delete_focused_row(TControl& table) {
  if (stats.count == 0) return;
  delete_stats_row(table.selected);
  table.rows = rows();
  table.selected = std::min(table.selected, static_cast<int>(table.rows.size()) - 1);
}

}  // namespace

void show_stats_rows() {
  TDialog dialog(169, "Stats List");
  const int table = dialog.add(table_control("", columns(), rows()));
  const int remove = dialog.add(button_control("Delete"));
  dialog.add(beside(button_control("OK", BUTTON_DEFAULT)));
  dialog.procedure = [=](TDialog& open, const TDialogEvent& event) {
    if (event.kind == CONTROL_ACTIVATED && event.control == remove) delete_focused_row(open[table]);
  };
  platform().run_dialog(dialog);
}

}  // namespace zephyl
