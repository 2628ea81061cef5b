#include "engine/state.h"

namespace zephyl {

TSettings settings;
TState state;

void reset_settings() { settings = {}; }
void reset_state() { state = {}; }

}  // namespace zephyl
