// Numbers in the records of a state file. A wrong shape reads as zero, a number out of its range as a stated
// default: a file that somebody has edited by hand never stops in the middle.
#pragma once

#include <string>

namespace zephyl {

// 14 significant digits, as few characters as they take: "1.5", "1.0e2", "1.0e-3"; a zero of either sign is
// "0.0". One shared buffer.
const char* format_state_number(double value);

// The fields of a record, one behind the other.
class TFieldReader {
 public:
  // text: must live as long as the reader; what stands behind "X: ".
  explicit TFieldReader(const char* text) : at_(text) {}

  // The number ahead of the next colon, of which at most four characters count; 0 if it isn't from 0 to 1000.
  // The next field starts behind the colon; without one all that follows is empty.
  int read_index();
  // A whole number; `otherwise` if it isn't from low to high.
  int read_bounded(int low, int high, int otherwise) const;
  // What isn't a finite number is 0.
  double read_real() const;
  // The same, up to the next comma, which is passed.
  double read_real_of_pair();
  // All that is left.
  const char* rest() const { return at_; }

 private:
  const char* at_;
};

}  // namespace zephyl
