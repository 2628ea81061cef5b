// A calculator with a folder of its own, that saves to a state file and loads from one.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <initializer_list>
#include <string>

#include "engine/expression.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "support/calculator.h"
#include "support/file_faults.h"

namespace zephyl {

class state_file : public calculator {
 protected:
  state_file() {
    EXPECT_EQ(::chdir(folder_.path().c_str()), 0);
    save_items = {};
  }

  std::string path() const { return folder_.file("a.state"); }
  // What a save with these items checked writes.
  std::string saved(std::initializer_list<int> items = {}) {
    save_items = {};
    for (const int item : items) save_items.checked[item] = true;
    save_state(path().c_str());
    return file_content(path());
  }
  // Its records of one letter, without the letter, with "|" behind each.
  std::string records(char letter, std::initializer_list<int> items = {}) {
    const std::string content = saved(items);
    std::string found;
    for (std::size_t at = 0; at < content.size();) {
      const std::size_t end = content.find("\r\n", at);
      const std::string line = content.substr(at, end - at);
      if (line.compare(0, 3, std::string(1, letter) + ": ") == 0) found += line.substr(3) + "|";
      at = end + 2;
    }
    return found;
  }
  // Loads a file of these lines, separated by "|".
  void load(const std::string& lines) {
    std::string content;
    for (const char c : lines) content += c == '|' ? "\r\n" : std::string(1, c);
    load_bytes(content + "\r\n");
  }
  void load_bytes(const std::string& content) {
    make_file(path(), content);
    load_state(path().c_str());
  }
  static std::string codes_of(const TExpression& expression) {
    std::string codes;
    for (int i = 0; i < expression.count; ++i) codes += std::to_string(expression.tokens[i]) + " ";
    return codes;
  }

  TTestFolder folder_;
};

}  // namespace zephyl
