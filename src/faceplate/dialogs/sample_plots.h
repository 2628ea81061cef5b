// Dialog 216, "Select Sample Plot".
#pragma once

namespace zephyl {

// Sets up the chosen sample plot. False if the user cancelled.
bool choose_sample_plot();

}  // namespace zephyl
