#include "faceplate/dialogs/sample_plots.h"

#include "faceplate/dialogs/remembered.h"
#include "faceplate/dialogs/running.h"
#include "faceplate/gif.h"
#include "persistence/samples.h"

namespace zephyl {

namespace {

constexpr int SAMPLE_PLOTS = 216;
constexpr int PICTURE_WIDTH = 204;
constexpr int PICTURE_HEIGHT = 248;

int& last_row = remembered.sample_row;

// All of them at once, whatever is selected.
TSurface samples_picture() {
  TSurface picture(PICTURE_WIDTH, PICTURE_HEIGHT);
  draw_gif_resource(picture, "PLOT_SAMPLE_GIF", 0, 0, false, false);
  return picture;
}

}  // namespace

bool choose_sample_plot() {
  const std::vector<std::string> names = sample_names();
  TDialog dialog(SAMPLE_PLOTS, "Select Sample Plot");
  const int combo = dialog.add(combo_control("Sample Plot:", names, last_row));
  dialog.add(picture_control("Sample plots", samples_picture()));
  add_ok_cancel(dialog);
  if (!confirmed(dialog) || dialog[combo].selected < 0) return false;
  last_row = dialog[combo].selected;
  return load_sample(names[static_cast<std::size_t>(last_row)]);
}

}  // namespace zephyl
