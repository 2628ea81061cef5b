// The screens' pictures: shells with their caps, and the legends laid over them.
#pragma once

#include "product.h"

namespace art {

// BACKGROUND_GIF and the three fronts of the modes with digit keys.
void add_calculator_fronts(TProduct& product);
void add_program_front(TProduct& product);
void add_plot_fronts(TProduct& product);
void add_list_fronts(TProduct& product);

// The pictures laid over the fronts: 36 by 18 and 42 or 43 by 22.
void add_small_keys(TProduct& product);
void add_large_keys(TProduct& product);
// The tab line, its lit and dark tabs, the scroll buttons of the result line and the LEDs.
void add_tabs(TProduct& product);
void add_alpha_entry(TProduct& product);
void add_periodic_screen(TProduct& product);
// The pictures of two dialogs.
void add_coordinate_pictures(TProduct& product);
void add_sample_pictures(TProduct& product);

// The bitmaps.
void add_line_glyphs(TProduct& product);
void add_small_glyphs(TProduct& product);
void add_swatches(TProduct& product);

}  // namespace art
