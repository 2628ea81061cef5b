#include "faceplate/title.h"

#include <cstdio>

#include "engine/state.h"
#include "platform/platform.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr const char* PROGRAM_NAME = "Zephyl";
constexpr int TITLE_SIZE = 120;

}  // namespace

void refresh_title() {
  char title[TITLE_SIZE];
  if (state.calcMode == STATS_MODE)
    stats_title(title, sizeof title, PROGRAM_NAME);
  else
    std::snprintf(title, sizeof title, "%s", PROGRAM_NAME);
  platform().set_title(title);
}

}  // namespace zephyl
