// Plot Table: the functions that are plotted, as a table of values that scrolls without an end.

#include <string>
#include <vector>

#include "engine/field_value.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/parameter_names.h"
#include "plot/plot.h"
#include "plot/plot_table.h"

namespace zephyl {

namespace {

constexpr int PLOT_TABLE = 213;
constexpr int COLUMN_WIDTH = 78;

enum TTableControl { TABLE = 0, START, DELTA, RECALC, EXIT };

void show_rows(TDialog& dialog, TPlotTable& table) {
  set_rows(dialog[TABLE], table.rows(), dialog[TABLE].selected);
}

void build(TDialog& dialog, const TPlotTable& table) {
  std::vector<TColumn> columns;
  for (const std::string& heading : table.headings()) columns.push_back({heading, COLUMN_WIDTH});
  const std::string parameter = parameter_name();
  dialog.add(table_control("", columns, {}));
  dialog[TABLE].scrolls = true;
  dialog.add(edit_control(parameter + " start:", field_text(table.start())));
  dialog.add(beside(edit_control(parameter + " delta:", field_text(table.delta()))));
  dialog.add(button_control("Recalc", BUTTON_DEFAULT));
  dialog.add(beside(button_control("Exit", BUTTON_CANCEL)));
}

void recalculate(TDialog& dialog, TPlotTable& table) {
  double start = table.start(), delta = table.delta();
  if (!read_field(dialog[START], start) || !read_field(dialog[DELTA], delta)) return;
  table.recalculate(start, delta);
  show_rows(dialog, table);
}

void scroll(TDialog& dialog, TPlotTable& table, int rows) {
  if (!table.move(rows)) return;
  dialog[START].text = field_text(table.start());
  show_rows(dialog, table);
}

void follow(TDialog& dialog, const TDialogEvent& event, TPlotTable& table) {
  if (event.kind == CONTROL_SCROLLED) return scroll(dialog, table, event.rows);
  if (event.kind != CONTROL_ACTIVATED || event.control != RECALC) return;
  recalculate(dialog, table);
  dialog.keep_open();
}

}  // namespace

void open_plot_table() {
  TPlotTable table;
  TDialog dialog(PLOT_TABLE, "Plot Table");
  build(dialog, table);
  show_rows(dialog, table);
  dialog.procedure = [&table](TDialog& shown, const TDialogEvent& event) { follow(shown, event, table); };
  platform().run_dialog(dialog);
}

}  // namespace zephyl
