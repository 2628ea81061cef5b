#include "faceplate/key_words.h"

#include <iterator>

namespace zephyl {

namespace {

template <int COUNT>
constexpr TKeyWordTable table(const TKeyWords (&rows)[COUNT]) {
  return {rows, COUNT};
}

constexpr TKeyWords digit_screen[] = {
    {3, "Open parenthesis", "open brace"},
    {4, "Close parenthesis", "close brace"},
    {10, "Recall", "store"},
    {20, "Delete"},
    {21, "Cursor left", "far left"},
    {22, "Cursor right", "far right"},
    {23, "7"},
    {24, "8"},
    {25, "9"},
    {27, "All clear", "clear items"},
    {28, "4"},
    {29, "5"},
    {30, "6"},
    {31, "Times"},
    {32, "Divided by"},
    {33, "1"},
    {34, "2"},
    {35, "3"},
    {36, "Plus"},
    {37, "Minus"},
    {38, "0"},
    {39, ""},
    {40, "Exponent"},
    {41, "Answer"},
    {42, "Equals"},
    {43, "COMP mode"},
    {44, "Program editor"},
    {45, "Plot"},
    {46, ""},
    {47, "Menu"},
    {48, "Setup"},
    {49, ""},
    {50, "Scroll the result left"},
    {51, "Scroll the result right"},
};

constexpr TKeyWords comp[] = {
    {0, "Orange shift"},
    {1, "Blue shift"},
    {2, "Hyperbolic"},
    {5, "Sine", "inverse sine"},
    {6, "Cosine", "inverse cosine"},
    {7, "Tangent", "inverse tangent"},
    {8, "Reciprocal", "constants"},
    {9, "Square", "unit conversions"},
    {11, "Natural logarithm", "e to the power"},
    {12, "Decimal logarithm", "10 to the power"},
    {13, "Power", "root with an index"},
    {14, "Square root", "test"},
    {15, "Cube root", "cube"},
    {16, "", "mark of the angle unit"},
    {17, "Negative", "pi", "e"},
    {18, "Factorial", "imaginary unit"},
    {19, "", "absolute value"},
    {20, "Delete", "earlier expressions"},
    {23, "7", "percent change", "percent"},
    {24, "8", "text"},
    {25, "9", "functions", "system variables"},
    {26, "", "plot functions", "plot variable"},
    {27, "All clear", "remove the last statistics entry", "clear items"},
};

constexpr TKeyWords base[] = {
    {0, "Blue shift"},
    {1, ""},
    {2, ""},
    {5, "Not", "modulo"},
    {6, "And", "shift left"},
    {7, "Or", "shift right"},
    {8, "Exclusive or"},
    {9, "Exclusive nor"},
    {11, "A, hexadecimal digit"},
    {12, "B, hexadecimal digit"},
    {13, "C, hexadecimal digit"},
    {14, "D, hexadecimal digit"},
    {15, "E, hexadecimal digit"},
    {16, "F, hexadecimal digit"},
    {17, "d, decimal number"},
    {18, "h, hexadecimal number"},
    {19, "b, binary number", "o, octal number"},
    {26, "Enter into the statistics", "remove the last statistics entry"},
};

constexpr TKeyWords stats[] = {
    {0, "Blue shift"},
    {1, ""},
    {2, "Statistics list"},
    {5, "Sum of x times y"},
    {6, "Weighted mean of x", "weighted mean of y"},
    {7, "Estimate of x", "regression coefficient a"},
    {8, "Estimate of y", "regression coefficient b"},
    {9, "", "correlation coefficient r"},
    {11, "Mean of x", "mean of y"},
    {12, "Sum of x", "sum of y"},
    {13, "Sum of x squared", "sum of y squared"},
    {14, "Population standard deviation of x", "population standard deviation of y"},
    {15, "Sample standard deviation of x", "sample standard deviation of y"},
    {16, "Number of entries", "smallest x"},
    {17, "Negative", "largest x"},
    {18, "Remove the last statistics entry", "smallest y"},
    {19, "Clear the statistics", "largest y"},
    {23, "7", "statistics summary"},
    {24, "8", "statistics plots"},
    {26, "Enter into the statistics"},
};

constexpr TKeyWords program[] = {
    {0, ""},
    {1, "Blue shift"},
    {2, "Line up", "10 lines up"},
    {3, "Line down", "10 lines down"},
    {4, "Delete the line"},
    {5, "Description"},
    {6, "If", "else"},
    {7, "Loop", "function with arguments"},
    {8, "While", "error"},
    {9, "End", "break"},
    {10, "In", "text"},
    {11, "Out", "out to a file"},
    {12, "Label", "return from subroutine"},
    {13, "Go to", "go to subroutine"},
    {14, "Call", "return from call"},
    {15, "In function", "evaluate function"},
    {16, "Expression", "edit or mark"},
    {17, "Stop", "menu statements"},
    {18, "COMP mode"},
    {19, "Program editor"},
    {20, "Plot"},
    {21, ""},
    {22, "Menu"},
    {23, "Setup"},
};

constexpr TKeyWords plot[] = {
    {1, "Plot setup"},
    {2, "Plot functions"},
    {3, "Zoom in"},
    {4, "Zoom out"},
    {5, "Lock x"},
    {6, "Lock y"},
    {7, "View to the centre"},
    {8, "View to the left"},
    {9, "View to the right"},
    {10, "View up"},
    {11, "View down"},
    {12, "COMP mode"},
    {13, "Program editor"},
    {14, "Plot"},
    {15, ""},
    {16, "Menu"},
    {17, "Setup"},
    {18, "z scale times 2"},
    {19, "z scale divided by 2"},
    {20, "Trace"},
    {21, "Zoom by a box"},
    {22, "Move the view"},
    {23, ""},
};

constexpr TKeyWords list_matrix[] = {
    {0, "COMP mode"},
    {1, "Program editor"},
    {2, "Plot"},
    {3, ""},
    {4, "Menu"},
    {5, "Setup"},
    {6, "Functions"},
    {7, "Equals"},
    {8, "Size"},
    {9, "Variable"},
    {10, "Enter"},
    {11, "Page left"},
    {12, "Page right"},
    {13, "Page up"},
    {14, "Page down"},
    {15, "Column left"},
    {16, "Column right"},
    {17, "Row up"},
    {18, "Row down"},
    {19, "Scroll the result left"},
    {20, "Scroll the result right"},
};

constexpr TKeyWords alpha[] = {
    {36, "Shift"}, {37, "Backspace"}, {38, "Space"}, {39, ""}, {40, "Enter"}, {41, "Cancel"},
};

constexpr TKeyWords periodic[] = {
    {0, "Back to COMP mode"},
    {1, "Element data table"},
};

struct TCharacterWords {
  char character;
  const char* words;
};

constexpr TCharacterWords characters[] = {
    {' ', "space"},
    {'(', "open parenthesis"},
    {')', "close parenthesis"},
    {'[', "open bracket"},
    {']', "close bracket"},
    {'{', "open brace"},
    {'}', "close brace"},
    {'<', "less than"},
    {'>', "greater than"},
    {'*', "asterisk"},
    {'=', "equals"},
    {':', "colon"},
    {';', "semicolon"},
    {',', "comma"},
    {'.', "point"},
    {'\'', "apostrophe"},
    {'"', "quotation mark"},
    {'+', "plus"},
    {'-', "minus"},
    {'!', "exclamation mark"},
    {'#', "number sign"},
    {'/', "slash"},
    {'\\', "backslash"},
    {'_', "underscore"},
    {'?', "question mark"},
    {'$', "dollar"},
    {'&', "ampersand"},
    {'~', "tilde"},
    {'^', "circumflex"},
    {'%', "percent"},
    {'@', "at sign"},
    {'|', "bar"},
};

}  // namespace

const TKeyWordTable digit_screen_words = table(digit_screen);
const TKeyWordTable comp_words = table(comp);
const TKeyWordTable base_words = table(base);
const TKeyWordTable stats_words = table(stats);
const TKeyWordTable program_words = table(program);
const TKeyWordTable plot_words = table(plot);
const TKeyWordTable table_words = table(list_matrix);
const TKeyWordTable alpha_words = table(alpha);
const TKeyWordTable periodic_words = table(periodic);

const TKeyWords* words_of_key(const TKeyWordTable& table, int key) {
  for (int i = 0; i < table.count; ++i)
    if (table.rows[i].key == key) return &table.rows[i];
  return nullptr;
}

const char* character_words(char character) {
  for (const TCharacterWords& row : characters)
    if (row.character == character) return row.words;
  return "";
}

}  // namespace zephyl
