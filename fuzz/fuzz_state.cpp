// Any bytes as a state file: the state that comes out must be one, can be saved, and 2+2 is 4 in it.

#include <string>

#include "fuzz_calculator.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "persistence/state_records.h"
#include "support/whole_state.h"

namespace {

using namespace zephyl;

void must_be_whole() {
  const std::string fault = state_fault();
  if (fault.empty()) return;
  std::fprintf(stderr, "%s\n", fault.c_str());
  std::abort();
}

void must_be_saved() {
  check_filled_items();
  std::string text;
  append_state_records(text);
  if (text.compare(0, 9, "V: 2.7A\r\n") != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  TLineReader lines(reinterpret_cast<const char*>(data), size);
  load_state(lines);
  must_be_whole();
  must_be_saved();
  must_answer();
  clear_items(CLEAR_ALL_ITEMS);
  return 0;
}
