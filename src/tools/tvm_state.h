// The eight values of the money solver. They are kept between uses and stored in state files.
#pragma once

namespace zephyl {

enum TTvmValue {
  TVM_N = 0,
  TVM_I = 1,
  TVM_PV = 2,
  TVM_PMT = 3,
  TVM_FV = 4,
  TVM_PY = 5,
  TVM_CY = 6,
  TVM_PMT_AT = 7
};

struct TvmState {
  double values[7] = {0.0, 0.0, 0.0, 0.0, 0.0, 12.0, 12.0};  // by TTvmValue: N, I%YR, PV, PMT, FV, P/Y, C/Y
  bool begin = false;                                        // payments at the beginning of each period
};
extern TvmState tvm_state;

// By TTvmValue. PMT@ is 0.0 at the end of the period and 1.0 at its beginning.
double tvm_value(int index);
// undefined_value changes nothing. Any PMT@ other than 0 is the beginning.
void set_tvm_value(int index, double value);

void reset_tvm_state();

// Fills in the rows of the system variables, in which tvmPMT@ reads and takes 1 for the end and 2 for the
// beginning.
void register_tvm_variables();

}  // namespace zephyl
