// The letters that reach a control with Alt.
#pragma once

#include <QString>
#include <vector>

namespace zephyl {

class TDialog;

// The labels of all controls as Qt reads them, with "&" in front of the letter and "&&" for a "&" that shows.
// Letters go to the controls in their order, each the first of a word that is still free, else any free one.
// Those that Enter and Escape press get none, nor do controls that nobody can go to.
std::vector<QString> labels_with_mnemonics(const TDialog& dialog);

}  // namespace zephyl
