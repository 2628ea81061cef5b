#include "engine/hooks.h"

namespace zephyl {

THooks hooks;

}  // namespace zephyl
