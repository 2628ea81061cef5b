// The records of a state file, a line each: a letter, a colon, a blank and the fields. Writing is append_...;
// reading is one function for all, which samples of plots use too.
#pragma once

#include <string>

namespace zephyl {

// One record by a format, as printf takes it, with its line end. What is longer than 199 characters loses its
// tail and with it the line end: files in circulation are like that, see docs/quirks.md.
void append_record(std::string& text, const char* format, ...) __attribute__((format(printf, 2, 3)));

// All records of the items that are to be saved, but for the drawing.
void append_state_records(std::string& text);

enum TStateLine {
  STATE_LINE_READ,     // or passed over: it is no record
  STATE_LINE_DRAWING,  // the bytes of a drawing follow
  STATE_LINE_NEWER     // a version above this one's: the user has been told, nothing more is to be read
};
// Takes one record. No check beyond what keeps the stores whole: fields of a wrong shape read as zeros.
TStateLine read_state_line(const std::string& line);

// After the last record: what the single records can't see is put right (a view without an area, a cursor
// behind the line's end), and everything is shown anew.
void finish_reading_state();

}  // namespace zephyl
