// Any bytes as the file of the settings: what is read must be settings, can be written and read again as the same, and 2+2 is 4
// with them.

#include <cstdio>
#include <string>

#include "fuzz_calculator.h"
#include "fuzz_folder.h"
#include "persistence/settings.h"
#include "support/whole_state.h"

namespace {

using namespace zephyl;

std::string bytes_of(const std::string& path) {
  std::string bytes;
  if (std::FILE* file = std::fopen(path.c_str(), "rb")) {
    char part[4096];
    while (const std::size_t count = std::fread(part, 1, sizeof part, file)) bytes.append(part, count);
    std::fclose(file);
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  start_once();
  take_folder();
  const std::string path = fuzz_platform().folder + "/startup.txt";
  write_bytes(path, data, size);
  load_settings();
  const std::string fault = state_fault();
  if (!fault.empty()) {
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
  }
  save_settings();
  const std::string once = bytes_of(path);
  load_settings();
  save_settings();
  if (once.empty() || bytes_of(path) != once) std::abort();
  must_answer();
  return 0;
}
