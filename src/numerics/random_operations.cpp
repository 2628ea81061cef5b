// The operations of the random generator.

#include "numerics/random.h"
#include "numerics/registration.h"

namespace zephyl {

namespace {

void seed(TScalarCall& call) { call.result = {seed_random(call.args[0].re), 0.0}; }

}  // namespace

void register_random_operations() { operations[OP_RAND_SEED].scalar = seed; }

}  // namespace zephyl
