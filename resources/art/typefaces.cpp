#include "typefaces.h"

#include "signs.h"

namespace art {

TTypefaces::TTypefaces()
    : legend("6x10.pcf.gz", 1, 3),
      tiny("5x7.pcf.gz", 1, 2),
      label("7x13B.pcf.gz", 1, 3),
      narrow("6x13B.pcf.gz", 1, 2),
      round("ter-u14b_unicode.pcf.gz", 1, 4),
      digit("9x15B.pcf.gz", 1, 4),
      line("ter-u16n_unicode.pcf.gz", 1, 12),
      small("6x9.pcf.gz", 1, 3) {
  legend.add_signs(legend_signs());
  label.add_signs(label_signs());
  narrow.add_signs(label_signs());
  digit.add_signs(digit_signs());
  line.add_signs(line_signs());
}

const TTypefaces& typefaces() {
  static const TTypefaces faces;
  return faces;
}

}  // namespace art
