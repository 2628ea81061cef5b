// zephyl-art: draws every picture and glyph of the calculator and writes them as a C++ source.
//
//   zephyl-art OUTPUT.cpp [FOLDER]
//
// FOLDER, which must exist, also gets the pictures as GIF files and the glyphs as text, to look at.

#include <cstdio>
#include <exception>

#include "fronts.h"

int main(int count, char** arguments) {
  if (count < 2 || count > 3) {
    std::fprintf(stderr, "usage: zephyl-art OUTPUT.cpp [FOLDER]\n");
    return 2;
  }
  try {
    art::TProduct product;
    art::add_calculator_fronts(product);
    art::add_program_front(product);
    art::add_plot_fronts(product);
    art::add_list_fronts(product);
    art::add_alpha_entry(product);
    art::add_small_keys(product);
    art::add_large_keys(product);
    art::add_tabs(product);
    art::add_periodic_screen(product);
    art::add_coordinate_pictures(product);
    art::add_sample_pictures(product);
    art::add_line_glyphs(product);
    art::add_small_glyphs(product);
    art::add_swatches(product);
    product.write_source(arguments[1]);
    if (count == 3) product.write_files(arguments[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zephyl-art: %s\n", error.what());
    return 1;
  }
  return 0;
}
