#include "app/start_up.h"

#include "collections/list_families.h"
#include "collections/matrix_families.h"
#include "collections/string_families.h"
#include "engine/engine_operations.h"
#include "engine/system_variables.h"
#include "faceplate/faceplate.h"
#include "numerics/date_time.h"
#include "numerics/deviates.h"
#include "numerics/distributions.h"
#include "numerics/numerics.h"
#include "numerics/operators/operators.h"
#include "numerics/special_functions.h"
#include "persistence/state_file.h"
#include "persistence/units.h"
#include "plot/drawing.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"
#include "programs/programs.h"
#include "stats/stats.h"
#include "tools/cash_flows.h"
#include "tools/molecular_mass.h"
#include "tools/tvm_solver.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

void register_numerics() {
  register_scalar_operations();
  register_special_operations();
  register_distribution_operations();
  register_deviate_operations();
  register_date_operations();
  register_numeric_operators();
}

void register_collections() {
  register_list_operations();
  register_matrix_operations();
  register_string_operations();
}

}  // namespace

void register_families() {
  register_engine_operations();
  register_engine_variables();
  register_numerics();
  register_collections();
  register_stats();
  register_plot_variables();
  register_drawing();
  register_plot();
  register_tvm_variables();
  register_tvm_operations();
  register_cash_flow_operations();
  register_molecular_mass();
  register_units();
  register_state_operations();
  register_programs();
  register_faceplate_hooks();
}

}  // namespace zephyl
