// The reporter of every evaluation error. The first error of a run stands until something clears it; it stops
// the walk, turns keys red and is what the result line shows.
#pragma once

namespace zephyl {

enum TError : int {
  ERR_OVERFLOW = 0,
  ERR_OVERFLOW_TOO = 1,  // the words of ERR_OVERFLOW
  ERR_ZERO_DIVIDE = 2,
  ERR_MATH = 3,
  ERR_DOMAIN = 4,
  ERR_SYNTAX = 5,
  ERR_NO_STATS_DATA = 6,
  ERR_NO_STATS_Y_DATA = 7,
  ERR_MEMORY_LIMIT = 8,
  ERR_UNEXPECTED = 9,
  ERR_MATRIX_MISMATCH = 10,
  ERR_NOT_SQUARE = 11,
  ERR_MATRIX_SIZE = 12,
  ERR_SINGULAR = 13,
  ERR_MATRIX_UNDEFINED = 14,
  ERR_DATA_TYPE = 15,
  ERR_MATRIX_INDEX = 16,
  ERR_ARGUMENT_COUNT = 17,
  ERR_ARGUMENT_TYPE = 18,
  ERR_NOT_POSITIVE_DEFINITE = 19,
  ERR_NOT_SYMMETRIC = 20,
  ERR_LIST_UNDEFINED = 21,
  ERR_LIST_INDEX = 22,
  ERR_LIST_SIZE = 23,
  ERR_LIST_MISMATCH = 24,
  ERR_CANCELED = 25,
  ERR_STRING_SIZE = 26,
  ERR_INVALID_STRING = 27,
  ERR_ELEMENT_SYMBOL = 28,
  ERR_NESTED_FNINT = 29,
  ERR_PARENTHESIS_LEVEL = 30,
  ERR_PARENTHESIS_UNBALANCED = 31,
  ERR_NO_ROOT = 32,
  ERR_NO_INTERSECTION = 33,
  ERR_TO_HMS_NOT_LAST = 34,
  ERR_FUNCTION_NEST = 35,
  ERR_UNDEFINED_FUNCTION = 36,
  ERR_NESTED_FUNCTION = 37,
  ERR_PROGRAM_CODE = 38,
  ERR_PROGRAM_VERSION = 39,
  ERR_PROGRAM_NOT_FOUND = 40,
  ERR_PROGRAM_TEXT = 41,  // the words that the running program supplied
  ERR_PROGRAM_STOPPED = 42,
  ERR_PROGRAM_NESTING = 43,
  ERR_NOT_TWO_VARIABLE = 44,
  ERR_STATS_SIZE = 45,
  ERR_INVALID_DATE = 46,
  ERR_NO_TVM_SIGN_CHANGE = 47,
  ERR_NO_IRR_SIGN_CHANGE = 48,
  ERR_ITERATIONS = 49,
  NO_REPORT = 50,  // for checked_integer: fail in silence
};

constexpr int ERROR_TEXT_SIZE = 120;
constexpr const char* VERSION_TEXT = "2.7A";

struct TErrorState {
  bool error_flag = false;
  int error_code = 0;
  char error_text[ERROR_TEXT_SIZE] = "";
  // "v%s, %s, %d": version, source file, line of the report; goes into state files.
  char error_location[200] = "";
  bool error_in_program = false;  // the message carries the line of a program
  bool error_line_shown = false;  // the mark that the program's line is on the display
  int error_line = 0;             // statement number in that program, from 0
  char error_program[40] = "";
};
extern TErrorState errors;

// The message of a code; "Unexpected Error" for a code without one.
const char* error_message(int code);

// Makes `code` the standing error unless one stands already. File and line are filled in by the compiler.
void report_error(TError code, const char* file = __builtin_FILE(), int line = __builtin_LINE());

// The words of the next ERR_PROGRAM_TEXT.
void set_program_error_text(const char* text);

// Takes the error back, with the mark of its line. The message text stays for whoever wants to see it.
void clear_error();

void reset_errors();

}  // namespace zephyl
