// Golden pictures: what a surface must look like, kept as tests/pictures/NAME.png and compared pixel by
// pixel.
//
// Where one differs or is missing, the test fails, and build/<preset>/picture-differences holds
// NAME.actual.png (what was painted) and NAME.difference.png (the golden one faded, with the pixels that
// differ in red). After a look at those, tests/renew-pictures.sh makes what is painted now the golden
// pictures; nothing else changes them.
#pragma once

#include <string>

namespace zephyl {

class TSurface;

// name: a file name without its ending, the same picture in one test only.
void expect_picture(const std::string& name, const TSurface& surface);

// Removes what a comparison that failed has left behind.
void forget_painted_picture(const std::string& name);

}  // namespace zephyl
