// What somebody can do in a dialog, whatever it is for.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace zephyl {

class TDialog;

// Texts that a field isn't made for: nothing, what can't be read, what faults, values of other types, what is too long.
const std::vector<std::string>& nonsense_texts();

// A row of a control.
struct TChoice {
  int control;
  int row;
};

// Choices that are made one after the other.
using TChoices = std::vector<TChoice>;

// Chooses every row of every control, and those of the controls whose rows follow. Returns the ways to each row.
std::vector<TChoices> choose_every_row(TDialog& dialog);
void make(TDialog& dialog, const TChoices& choices);

// Other rows, marks, slider values and texts than there are, in every control; presses nothing.
void change_everything(TDialog& dialog);

// The controls of a kind.
std::vector<int> controls_of(const TDialog& dialog, int kind);

// That many acts, or fewer if one of them closes the dialog.
void act_at_random(TDialog& dialog, std::mt19937& dice, int acts);

}  // namespace zephyl
