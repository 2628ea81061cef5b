#include "faceplate/title.h"

#include <cstdio>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/state.h"
#include "platform/platform.h"
#include "plot/plot_variables.h"
#include "programs/programs.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr const char* PROGRAM_NAME = "Zephyl";
constexpr int TITLE_SIZE = 120;
using TTitle = char[TITLE_SIZE];

void matrix_title(TTitle& title) {
  const int number = matrix_view.current_matrix;
  const MatrixRecord& matrix = stores.matrices[number];
  char size[40] = "Undefined";
  if (matrix.defined) std::snprintf(size, sizeof size, "%d,%d", matrix.last_row + 1, matrix.last_col + 1);
  if (number == ANSWER_RECORD)
    std::snprintf(title, sizeof title, "%s (M Ans[%s])", PROGRAM_NAME, size);
  else
    std::snprintf(title, sizeof title, "%s (%c[%s])", PROGRAM_NAME, 'A' + number, size);
}

void list_title(TTitle& title) {
  const int number = list_view.current_list;
  const ListRecord& list = stores.lists[number];
  char size[40] = "Undefined";
  if (list.defined) std::snprintf(size, sizeof size, "%d", list.last + 1);
  if (number == ANSWER_RECORD)
    std::snprintf(title, sizeof title, "%s (L Ans{%s})", PROGRAM_NAME, size);
  else
    std::snprintf(title, sizeof title, "%s (%c{%s})", PROGRAM_NAME, 'A' + number, size);
}

// The word of a setting, or, with the alarm of a value out of range, an empty one.
template <int COUNT>
const char* word(const char* const (&words)[COUNT], int value, const char* alarm) {
  if (value >= 0 && value < COUNT) return words[value];
  platform().show_message(alarm, "Bug (Set_WindowText_with_Plot_Data)");
  return "";
}

const char* plot_type_word() {
  if (plot_variables.plotType == PLOT_3D)
    return word({"3D Cartesian", "3D Cylindrical", "3D Spherical"}, plot_variables.plotType3D,
                "Undefined Plot Type");
  return word({"Function", "Polar", "Parametric"}, plot_variables.plotType, "Undefined Plot Type");
}

const char* plot_cursor_word() {
  return word({" (trace)", " (box zoom)", " (pan)", " (rotate)"}, active_plot_cursor(),
              "Undefined Cursor Type");
}

void plot_title(TTitle& title) {
  const char* const type = plot_type_word();
  std::snprintf(title, sizeof title, "%s%s", type, plot_cursor_word());
}

}  // namespace

void refresh_title() {
  if (const char* title = program_title()) return platform().set_title(title);
  TTitle title;
  switch (state.calcMode) {
    case STATS_MODE:
      stats_title(title, sizeof title, PROGRAM_NAME);
      break;
    case MATRIX_MODE:
      matrix_title(title);
      break;
    case LIST_MODE:
      list_title(title);
      break;
    case PLOT_MODE:
      plot_title(title);
      break;
    default:
      std::snprintf(title, sizeof title, "%s", PROGRAM_NAME);
  }
  platform().set_title(title);
}

}  // namespace zephyl
