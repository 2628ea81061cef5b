// Texts that are built in: found by name, with the line ends of the program's files.

#include "engine/text_resources.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zephyl {
namespace {

TEST(text_resources, are_found_without_regard_to_case) {
  ASSERT_FALSE(text_resource("samples").empty());
  EXPECT_EQ(text_resource("SAMPLES").data(), text_resource("samples").data());
}

TEST(text_resources, are_empty_for_an_unknown_name) {
  EXPECT_TRUE(text_resource("").empty());
  EXPECT_TRUE(text_resource("sample").empty());
  EXPECT_TRUE(text_resource("samples2").empty());
}

TEST(text_resources, end_each_line_in_carriage_return_and_line_feed) {
  for (int i = 0; i < text_resource_count; ++i) {
    const std::string_view text(text_resources[i].bytes, text_resources[i].size);
    for (std::size_t at = 0; at < text.size(); ++at) {
      const bool feed = text[at] == '\n', after_return = at > 0 && text[at - 1] == '\r';
      EXPECT_EQ(feed, after_return) << text_resources[i].name << " at " << at;
    }
    EXPECT_EQ(std::strlen(text_resources[i].bytes), text.size()) << text_resources[i].name;
  }
}

}  // namespace
}  // namespace zephyl
