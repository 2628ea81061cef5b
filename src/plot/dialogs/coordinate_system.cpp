#include "plot/dialogs/coordinate_system.h"

#include "engine/hooks.h"
#include "platform/dialog.h"
#include "platform/platform.h"
#include "plot/plot_types.h"

namespace zephyl {

namespace {

constexpr int COORDINATE_SYSTEM = 195;
constexpr int PICTURE_WIDTH = 200;
constexpr int PICTURE_HEIGHT = 187;

TSurface picture_of(int kind) {
  constexpr const char* names[PLOT_KIND_COUNT] = {"FUNCTION",  "POLAR",       "PARAMETRIC",
                                                  "CARTESIAN", "CYLINDRICAL", "SPHERICAL"};
  TSurface picture(PICTURE_WIDTH, PICTURE_HEIGHT);
  hooks.draw_image(picture, names[kind], 0, 0);
  return picture;
}

}  // namespace

void show_coordinate_system(int kind) {
  if (kind < 0 || kind >= PLOT_KIND_COUNT) return;
  TDialog dialog(COORDINATE_SYSTEM, "Plot Coordinate System");
  dialog.add(picture_control(plot_kind_name(kind), picture_of(kind)));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  platform().run_dialog(dialog);
}

}  // namespace zephyl
