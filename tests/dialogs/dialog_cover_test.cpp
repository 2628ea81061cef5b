// No dialog is forgotten: each that the source makes has a road for the monkey, is opened by a transcript, and stands in
// docs/pictures/dialogs.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "dialogs/dialog_ids.h"
#include "dialogs/dialog_roads.h"
#include "platform/dialog.h"
#include "platform/script/script_platform.h"
#include "scripts/transcript.h"

namespace zephyl {

namespace {

class TOpenedDialogs : public TScriptPlatform {
 public:
  void before_dialog(TDialog& dialog) override { ids.insert(dialog.id()); }
  std::set<int> ids;
};

std::set<int> opened_by_transcripts() {
  std::set<int> ids;
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_FOLDER "/tests/scripts")) {
    if (entry.path().extension() != ".txt" || entry.path().filename() == "CMakeLists.txt") continue;
    TTranscript transcript;
    TOpenedDialogs platform;
    EXPECT_TRUE(read_transcript(entry.path().string(), transcript) && run_transcript(transcript, platform));
    ids.insert(platform.ids.begin(), platform.ids.end());
  }
  return ids;
}

// "148-select-label.png" and, for dense screens, "148-select-label@2x.png".
std::set<int> drawn(const std::string& ending) {
  std::set<int> ids;
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_FOLDER "/docs/pictures/dialogs")) {
    const std::string name = entry.path().filename().string();
    const bool dense = name.find("@2x") != std::string::npos;
    if (entry.path().extension() == ".png" && dense == (ending == "@2x")) ids.insert(std::atoi(name.c_str()));
  }
  return ids;
}

std::set<int> with_a_road() {
  std::set<int> ids;
  for (const TDialogRoad& road : dialog_roads()) ids.insert(road.id);
  return ids;
}

}  // namespace

TEST(dialog_cover, the_source_says_the_id_of_each_dialog) {
  EXPECT_EQ(dialog_ids_of_source().unreadable, std::vector<std::string>());
  EXPECT_GE(dialog_ids_of_source().ids.size(), 52u);
}

TEST(dialog_cover, each_has_a_road_for_the_monkey) { EXPECT_EQ(with_a_road(), dialog_ids_of_source().ids); }

TEST(dialog_cover, each_is_opened_by_a_transcript) { EXPECT_EQ(opened_by_transcripts(), dialog_ids_of_source().ids); }

// docs/pictures/dialogs.sh draws them.
TEST(dialog_cover, each_has_its_pictures) {
  EXPECT_EQ(drawn(""), dialog_ids_of_source().ids);
  EXPECT_EQ(drawn("@2x"), dialog_ids_of_source().ids);
}

}  // namespace zephyl
