#include "faceplate/cell_text.h"

#include <cstdint>
#include <cstring>

#include "engine/format.h"
#include "engine/state.h"
#include "faceplate/display.h"
#include "plot/small_numbers.h"

namespace zephyl {

namespace {

constexpr int FORM_LIMIT = 256;
constexpr int FLOAT_DIGITS = 10;
constexpr int MOST_DECIMALS = 8;

// How a value was found to fit.
struct TForm {
  TValue value;
  int width = 0;
  int complex_format = 0;
  int format = FORMAT_FLOAT;
  int digits = FLOAT_DIGITS;
};

struct TForms {
  TForm rows[FORM_LIMIT];
  int count = 0;
  std::uint32_t random = 1;
};
TForms forms;

// Bit by bit, so that a NaN is found again and a negative zero is itself.
bool same(const TValue& a, const TValue& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

const TForm* find_form(const TValue& value, int width) {
  for (int i = 0; i < forms.count; ++i) {
    const TForm& form = forms.rows[i];
    if (same(form.value, value) && form.width == width && form.complex_format == settings.complexFormat)
      return &form;
  }
  return nullptr;
}

// Any row makes room when all are taken: what is on the screen comes back with the next look.
int row_for_another() {
  if (forms.count < FORM_LIMIT) return forms.count++;
  forms.random = forms.random * 1664525u + 1013904223u;
  return static_cast<int>(forms.random >> 24);
}

const char* text_of(const TForm& form) {
  return format_value(form.value.re, form.value.im, form.format, form.digits, settings.baseType, false,
                      false);
}

bool fits(const TForm& form) { return small_text_width(text_of(form)) <= form.width; }

TForm fitted(const TValue& value, int width) {
  TForm form = {value, width, settings.complexFormat, FORMAT_FLOAT, FLOAT_DIGITS};
  if (fits(form)) return form;
  form.format = FORMAT_SCIENTIFIC;
  for (form.digits = MOST_DECIMALS; form.digits > 0; --form.digits)
    if (fits(form)) break;
  return form;
}

}  // namespace

int small_text_width(const char* text) { return draw_small_number(screen_surface(), text, 0, 0, true, true); }

const char* cell_text(const TValue& value, int width) {
  const TForm* form = find_form(value, width);
  if (!form) {
    const TForm another = fitted(value, width);
    form = &(forms.rows[row_for_another()] = another);
  }
  return text_of(*form);
}

void forget_cell_forms() { forms = {}; }

}  // namespace zephyl
