#include "programs/run_state.h"

namespace zephyl {

TRun run;

void reset_run() { run = {}; }

}  // namespace zephyl
