#include "platform_desktop/sample_dialogs.h"

#include <cmath>
#include <utility>

#include "platform/surface.h"

namespace zephyl {

namespace {

TControl disabled(TControl control) {
  control.enabled = false;
  return control;
}

std::vector<std::string> numbers(int from, int to) {
  std::vector<std::string> rows;
  for (int i = from; i <= to; ++i) rows.push_back(std::to_string(i));
  return rows;
}

TSurface swatch(int width, int height) {
  TSurface surface(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      surface.set_pixel(x, y, (x / 4 + y / 4) % 2 ? rgb(146, 201, 158) : rgb(40, 90 + x, 60 + y));
  return surface;
}

}  // namespace

TDialog setup_sample() {
  TDialog dialog(103, "Setup Options");
  dialog.add(radio_control("Float", 1, true));
  for (const char* format : {"Fixed", "Scientific", "Engineering"})
    dialog.add(radio_control(format, 1, false));
  dialog.add(combo_control("Decimal Digits:", numbers(0, 10), 4));
  dialog.add(combo_control("Decimal Mark:", {"Dot(.)", "Comma(,)"}));
  dialog.add(combo_control("Complex Format:", {"Real only", "a+bi (rectangular)", "re^((theta)i) (polar)"}));
  dialog.add(check_control("Key Click?", false));
  for (const char* label :
       {"About", "Help", "Edit Constants", "Save State", "Load State", "Display Color/Skin"})
    dialog.add(button_control(label));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog variable_sample() {
  TDialog dialog(170, "Select Variable");
  dialog.add(
      combo_control("Group:", {"R0-R9", "Upper Case", "Lower Case", "Greek", "List", "Matrix", "String"}, 1));
  dialog.add(combo_control("Variable:", {"A: 1.25", "B: -3", "C: 0", "D: 6.02214e23"}));
  dialog.add(check_control("By Value?", false));
  add_ok_cancel(dialog);
  return dialog;
}

// A string variable may hold a thousand characters.
TDialog string_sample() {
  std::string row = "str1: ";
  while (row.size() < 1000) row += "and one more line of the poem, ";
  TDialog dialog(157, "Select Variable");
  dialog.add(combo_control("Variable:", {row, "str2: short"}));
  dialog.add(list_control("The same:", {row, "str2: short"}));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog table_sample(int rows) {
  TDialog dialog(169, "Stats List");
  std::vector<std::string> lines;
  for (int i = 1; i <= rows; ++i) {
    const double x = std::sqrt(i);
    lines.push_back(std::to_string(i) + "\t" + std::to_string(x) + "\t" + std::to_string(-x * i));
  }
  dialog.add(table_control("", {{"", 30}, {"x Data", 94}, {"y Data", 94}}, std::move(lines)));
  dialog.add(button_control("Delete"));
  dialog.add(beside(button_control("OK", BUTTON_DEFAULT)));
  return dialog;
}

TDialog program_sample(int programs) {
  TDialog dialog(152, "Select Program");
  std::vector<std::string> rows;
  for (int i = 0; i < programs; ++i) rows.push_back("program " + std::to_string(i) + "(value, list)");
  dialog.add(list_control("Program:", std::move(rows), 2));
  dialog.add(combo_control("Action:", {"Edit Program", "New Program", "Copy Program", "Delete Program"}));
  dialog.add(combo_control("Type:", {"Custom Program", "Built-in Program"}));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog colour_sample() {
  TDialog dialog(194, "Display Color/Skin");
  dialog.add(slider_control("Red:", 0, 255, 146));
  dialog.add(slider_control("Green:", 0, 255, 201));
  dialog.add(slider_control("Blue:", 0, 255, 158));
  dialog.add(slider_control("Brightness:", 0, 255, 128));
  dialog.add(combo_control("Skin:", {"Colorful (relatively)", "Dark", "Light"}));
  dialog.add(picture_control("Sample:", swatch(96, 60)));
  dialog.add(button_control("Default"));
  dialog.add(beside(button_control("OK", BUTTON_DEFAULT)));
  dialog.add(beside(button_control("Cancel", BUTTON_CANCEL)));
  return dialog;
}

TDialog help_sample() {
  TDialog dialog(140, "Catalog");
  std::vector<std::string> rows;
  for (int i = 0; i < 228; ++i)
    rows.push_back("function " + std::string(1, static_cast<char>('a' + i % 26)) + "(" + std::to_string(i));
  dialog.add(combo_control("Group:", {"All", "Numbers", "Lists"}));
  dialog.add(combo_control("Function:", std::move(rows)));
  dialog.add(
      text_control("Help:",
                   "Finds the zero of an expression between two bounds by a scan for a change of sign.\n"
                   "Arguments: the expression, its variable, the lower and the upper bound.\n"
                   "root(x^2-2,x,0,2) gives 1.4142135624.",
                   6));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog fields_sample() {
  TDialog dialog(206, "TVM Solver");
  for (const char* label : {"N:", "I%YR:", "PV:", "PMT:", "FV:", "P/Y:", "C/Y:"}) {
    dialog.add(edit_control(label, "12"));
    dialog.add(beside(button_control("Solve")));
  }
  dialog.add(combo_control("PMT@:", {"End", "Begin"}));
  dialog.add(text_control("Result:", "PMT = -1193.48"));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog arguments_sample() {
  TDialog dialog(162, "Custom Function Arguments");
  dialog.add(combo_control("Argument Count:", {"0 (no arguments)", "1", "2", "3", "4", "5", "6"}, 6));
  for (int i = 1; i <= 6; ++i) {
    dialog.add(edit_control("Name " + std::to_string(i) + ":", "", 8));
    dialog.add(beside(combo_control("Type:", {"Value", "List", "Matrix", "Function", "String"})));
  }
  add_ok_cancel(dialog);
  return dialog;
}

TDialog clear_sample() {
  TDialog dialog(218, "Select Items to Clear");
  for (const char* label : {"Clear Memory", "Clear Statistics", "Clear Lists", "Clear Matrices",
                            "Clear Strings", "Clear History", "Clear Plot Functions", "Clear Drawing"})
    dialog.add(check_control(label, false));
  dialog.add(disabled(check_control("Clear All Items", false)));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog buttons_sample() {
  TDialog dialog(193, "Select Plot");
  for (const char* label : {"Line Plot", "Histogram Plot", "Scatter Plot"}) dialog.add(button_control(label));
  dialog.add(button_control("Cancel", BUTTON_CANCEL));
  return dialog;
}

TDialog words_sample() {
  TDialog dialog(187, "Note");
  dialog.add(label_control(
      "While in COMP mode an expression can be entered for plotting. Use the <orange shift> "
      "'x,t,(theta)...' key to enter the dependent variable. Use the <blue shift> 'Plot' key to "
      "enter the expression into the function list for plotting."));
  dialog.add(button_control("OK", BUTTON_DEFAULT));
  return dialog;
}

TDialog menu_sample() {
  TDialog dialog(200, "Menu");
  TControl list = list_control("",
                               {"COMP Mode", "STATS Mode", "BASE-n Mode", "LIST Mode", "MATRIX Mode",
                                "PROG Mode", "PLOT Mode", "TVM Solver", "Constants", "Conversions",
                                "Periodic Table", "Plot Samples", "Stopwatch", "View Help File"},
                               3);
  list.lines = 14;
  dialog.add(std::move(list));
  dialog.add(text_control("Description:",
                          "Sample plots for each plot type (function, polar, parametric, 3D cartesian, 3D "
                          "cylindrical, 3D spherical).",
                          3));
  add_ok_cancel(dialog);
  return dialog;
}

TDialog long_sample() {
  TDialog dialog(1, "Thirty Lines");
  for (int i = 0; i < 10; ++i) {
    dialog.add(edit_control("Field " + std::to_string(i) + ":", std::to_string(i)));
    dialog.add(combo_control("Choice " + std::to_string(i) + ":", numbers(0, 30)));
    dialog.add(check_control("Mark " + std::to_string(i), i % 2 == 0));
  }
  add_ok_cancel(dialog);
  return dialog;
}

std::vector<std::pair<std::string, std::function<TDialog()>>> sample_dialogs() {
  return {{"setup", setup_sample},
          {"variable", variable_sample},
          {"string", string_sample},
          {"table", [] { return table_sample(2000); }},
          {"program", [] { return program_sample(12); }},
          {"programs", [] { return program_sample(60); }},
          {"colour", colour_sample},
          {"help", help_sample},
          {"fields", fields_sample},
          {"arguments", arguments_sample},
          {"clear", clear_sample},
          {"buttons", buttons_sample},
          {"words", words_sample},
          {"menu", menu_sample},
          {"long", long_sample}};
}

}  // namespace zephyl
