#include "dialogs/dialog_roads.h"

namespace zephyl {

namespace {

using TWay = std::vector<std::string>;

TWay operator+(TWay way, const TWay& on) {
  way.insert(way.end(), on.begin(), on.end());
  return way;
}

TWay menu_row(const char* row) { return {"key 47", std::string("choose #0 \"") + row + "\"", "press OK"}; }

TWay run_program(const char* name) {
  return {"key 49", std::string("choose \"Program Name\" \"") + name + "\"", "press OK", "run"};
}

const TWay editor = {"key 44", "choose Action \"New Program\"", "press OK", "char Steps\\r"};
const TWay statistics_plots = {"key 46", "key 0", "key 24"};

}  // namespace

const std::vector<TDialogRoad>& dialog_roads() {
  static const std::vector<TDialogRoad> roads = {
      {103, {"key 48"}},
      {138, {"key 1", "key 9"}},
      {147, {"key 1", "key 8"}},
      {148, editor + TWay{"key 12"}},
      {149, editor + TWay{"key 6"}},
      {150, editor + TWay{"key 10"}},
      {151, editor + TWay{"key 11"}},
      {152, {"key 44"}},
      {156, {"key 49"}},
      {157, {"key 1", "key 10"}},
      {160, {"key 48", "press About"}},
      {161, editor + TWay{"key 14"}},
      {162, editor + TWay{"key 1", "key 7"}},
      {163, editor + TWay{"key 1", "key 15"}},
      {164, editor + TWay{"key 15"}},
      {166, editor + TWay{"key 1", "key 11"}},
      {167, editor + TWay{"key 7"}},
      {168, {"char 12", "key 1", "key 20"}},
      {169, {"key 46", "key 2"}},
      {170, {"key 10"}},
      {175, editor + TWay{"key 1", "key 17"}},
      {176, run_program("Shapes")},
      {177, menu_row("Periodic Table") + TWay{"key 27"}},
      {181, {"key 48", "press \"Edit Constants\""}},
      {182, editor + TWay{"key 5"}},
      {184, run_program("Told")},
      {185, {"key 45", "key 1"}},
      {186, {"key 45", "key 2"}},
      {187, {"eval clrMem(5)", "eval clrMem(6)", "key 45"}},
      {188, {"key 46", "key 0", "key 23"}},
      {189, statistics_plots + TWay{"press \"Scatter Plot\""}},
      {190, statistics_plots + TWay{"press \"Histogram Plot\""}},
      {191, statistics_plots + TWay{"press \"Line Plot\""}},
      {192, {"eval 4->plotType", "key 27", "key 0", "key 26"}},
      {193, statistics_plots},
      {194, {"key 48", "press \"Display Color/Skin\""}},
      {195, {"key 45", "key 1", "press ?"}},
      {196, {"key 1", "key 25"}},
      {198, menu_row("MATRIX Mode") + TWay{"key 8"}},
      {200, {"key 47"}},
      {203, menu_row("Periodic Table") + TWay{"key 1"}},
      {204, menu_row("MATRIX Mode") + TWay{"key 9"}},
      {205, menu_row("Stopwatch")},
      {206, menu_row("TVM Solver")},
      {209, menu_row("TVM Solver") + TWay{"press \"Amortization Schedule\""}},
      {210, menu_row("LIST Mode") + TWay{"key 8"}},
      {211, menu_row("LIST Mode") + TWay{"key 9"}},
      {212, {"key 45", "key 23"}},
      {213, {"key 45", "key 23", "choose Calculation \"Table\"", "press OK"}},
      {214, {"key 0", "key 25"}},
      {216, menu_row("Plot Samples")},
      {217, {"key 48", "press \"Save State\""}},
      {218, {"key 0", "key 27"}},
      {220, {"key 1", "key 14"}},
  };
  return roads;
}

const TDialogRoad* road_to(int id) {
  for (const TDialogRoad& road : dialog_roads())
    if (road.id == id) return &road;
  return nullptr;
}

}  // namespace zephyl
