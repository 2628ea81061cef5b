#include "faceplate/dialogs/colour.h"

#include "faceplate/resources.h"
#include "platform/dialog.h"
#include "platform/platform.h"

namespace zephyl {

TDisplayLook pending_display;

namespace {

constexpr int SAMPLE_WIDTH = 150;
constexpr int SAMPLE_HEIGHT = 23;
constexpr int GLYPH_HEIGHT = 17;
constexpr const char* SAMPLE_TEXT = "Sample Text";

const std::vector<std::string> SKIN_NAMES = {"Colorful (relatively)", "Dark", "Light"};

int red_part(int colour) { return colour & 255; }
int green_part(int colour) { return colour >> 8 & 255; }
int blue_part(int colour) { return colour >> 16 & 255; }
int packed(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

const TBitmap& glyph(char character) { return character_glyph(static_cast<unsigned char>(character)); }

int text_width(const char* text) {
  int width = 0;
  for (; *text; ++text) width += glyph(*text).width;
  return width;
}

// The dialog with its controls, which it gives by their index.
struct TColourDialog {
  TDialog dialog{194, "Select Color and Skin"};
  int skin, red, green, blue, sample, brightness;

  TColourDialog();
  void update_sample();
  // What the controls say.
  TDisplayLook look() const;
  int colour() const { return packed(dialog[red].value, dialog[green].value, dialog[blue].value); }
};

TColourDialog::TColourDialog() {
  const auto add_slider = [this](const char* label, int value) {
    return dialog.add(slider_control(label, 0, 255, value));
  };
  const TDisplayLook& look = pending_display;
  const bool known = look.skin >= 0 && look.skin < static_cast<int>(SKIN_NAMES.size());
  skin = dialog.add(combo_control("Skin:", SKIN_NAMES, known ? look.skin : 0));
  sample = dialog.add(picture_control("Text Background", colour_sample(look.colour)));
  red = add_slider("Red:", red_part(look.colour));
  green = add_slider("Green:", green_part(look.colour));
  blue = add_slider("Blue:", blue_part(look.colour));
  brightness = add_slider("Brightness:", look.brightness);
  add_ok_cancel(dialog);
}

void TColourDialog::update_sample() { dialog[sample].picture = {colour_sample(colour())}; }

TDisplayLook TColourDialog::look() const {
  return {colour(), dialog[brightness].value, dialog[skin].selected};
}

}  // namespace

TSurface colour_sample(int colour) {
  TSurface surface(SAMPLE_WIDTH, SAMPLE_HEIGHT);
  surface.fill({0, 0, SAMPLE_WIDTH - 1, SAMPLE_HEIGHT - 1},
               rgb(red_part(colour), green_part(colour), blue_part(colour)));
  int x = (SAMPLE_WIDTH - text_width(SAMPLE_TEXT)) / 2;
  for (const char* at = SAMPLE_TEXT; *at; ++at) {
    surface.blit_glyph(glyph(*at), x, (SAMPLE_HEIGHT - GLYPH_HEIGHT) / 2);
    x += glyph(*at).width;
  }
  return surface;
}

void select_colour_and_skin() {
  TColourDialog colours;
  colours.dialog.procedure = [&colours](TDialog&, const TDialogEvent& event) {
    const int control = event.control;
    const bool colour = control == colours.red || control == colours.green || control == colours.blue;
    if (event.kind == CONTROL_CHANGED && colour) colours.update_sample();
  };
  platform().run_dialog(colours.dialog);
  if (colours.dialog.result() != DIALOG_CANCELLED) pending_display = colours.look();
}

}  // namespace zephyl
