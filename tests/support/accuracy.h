// How close a function comes to a peer over many arguments: the largest error is kept, printed and held
// against a tolerance. The figures of docs/accuracy.md are what these tests print.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace zephyl {

class TAccuracy {
 public:
  // function: as the user knows it, with the range of its arguments.
  TAccuracy(const char* function, double tolerance) : function_(function), tolerance_(tolerance) {}
  // Prints the line of the function; fails the test where its tolerance was exceeded.
  ~TAccuracy();

  // The error of `actual`, in parts of `scale`; the arguments are for the report.
  void compare(double actual, double expected, double scale, std::initializer_list<double> arguments);
  // In parts of the expected value.
  void compare(double actual, double expected, std::initializer_list<double> arguments);

 private:
  std::string function_;
  double tolerance_;
  int count_ = 0;
  double worst_ = -1.0;
  std::string worst_place_;
};

// A fixed sequence of arguments.
class TSpread {
 public:
  // Evenly between two numbers.
  double between(double low, double high);
  // As often between 1 and 10 as between 10 and 100.
  double by_magnitude(double low, double high);
  // A whole number.
  double whole(int low, int high);

 private:
  std::uint64_t word_ = 20240101;
};

}  // namespace zephyl
