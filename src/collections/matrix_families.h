// What the matrix files register with the engine.
#pragma once

namespace zephyl {

// All operations on matrices but that of drawing, and listToMatrix(.
void register_matrix_operations();

void register_matrix_arithmetic();      // + - * / ^, comparisons, negation, transpose
void register_matrix_cells();           // a scalar function on each cell
void register_matrix_lines();           // rows and columns exchanged, scaled, added, deleted
void register_matrix_building();        // new ones, parts and joins
void register_matrix_store();           // the store, and conversions from and to lists
void register_matrix_values();          // results that are numbers
void register_matrix_decompositions();  // factors, eigenvalues, solutions

}  // namespace zephyl
