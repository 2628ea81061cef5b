// The mass of a molecule from its formula.
#pragma once

namespace zephyl {

// g/mole. formula: element symbols, in letters of either case, each followed by its count ("H2O1"). With an error 0:
// ERR_INVALID_STRING for any other character and for a last element without a count, ERR_ELEMENT_SYMBOL for an unknown
// symbol, ERR_MEMORY_LIMIT for a symbol or count of 120 characters. An empty formula weighs nothing.
double molecular_mass(const char* formula);

// molecMass(.
void register_molecular_mass();

}  // namespace zephyl
