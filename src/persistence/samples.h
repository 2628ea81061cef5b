// The sample plots: complete plot setups as state records in resources/texts/samples.txt, each behind a line
// with its name, "N: Function".
#pragma once

#include <string>
#include <vector>

namespace zephyl {

// In the order of the text.
std::vector<std::string> sample_names();

// Sets up a sample: its functions, view, ranges and plot type take the place of what is there. False, and
// nothing is changed, if there is none of that name.
bool load_sample(const std::string& name);

}  // namespace zephyl
