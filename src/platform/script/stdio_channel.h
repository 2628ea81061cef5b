// Commands from standard input, answers to standard output.
#pragma once

#include "platform/script/script.h"

namespace zephyl {

class TStdioChannel : public TScriptChannel {
 public:
  bool read_line(std::string& line) override;
  void write_line(const std::string& line) override;
  void flush() override;
};

}  // namespace zephyl
