// A data folder of the fuzzing process, for targets whose bytes are files in it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz_calculator.h"
#include "support/temporary_folder.h"

namespace zephyl {

// Makes the folder, once, and has the calculator's data in it.
inline void take_folder() {
  static const TTemporaryFolder folder;
  if (folder.path().empty()) std::abort();
  fuzz_platform().folder = folder.path().string();
}

inline void write_bytes(const std::string& path, const std::uint8_t* data, std::size_t size) {
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (!file) std::abort();
  std::fwrite(data, 1, size, file);
  std::fclose(file);
}

}  // namespace zephyl
