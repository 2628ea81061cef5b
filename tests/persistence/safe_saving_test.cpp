// A state file is the old one or the new one, whole, whatever stops the save.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "engine/memory.h"
#include "engine/records.h"
#include "persistence/save_items.h"
#include "persistence/state_file.h"
#include "plot/drawing.h"
#include "support/calculator.h"
#include "support/file_faults.h"

namespace zephyl {

class safe_saving : public calculator {
 protected:
  safe_saving() {
    EXPECT_EQ(::chdir(folder_.path().c_str()), 0);
    eval("1.5->A");
    save_items.checked[SAVE_VARIABLES] = save_items.checked[SAVE_DRAWING] = true;
    drawing.drawing_used = true;
    drawing_bitmap().set_pixel(3, 4, BLACK);
    save_state("a.state");
    old_ = file_content("a.state");
    eval("2.5->A");
    drawing_bitmap().set_pixel(5, 6, BLACK);
  }

  // The two saves of a state with a drawing: "drawing.dat" and the file, five calls each.
  static constexpr int CALLS = 10;

  TTestFolder folder_;
  std::string old_;
};

TEST_F(safe_saving, a_call_that_fails_leaves_a_whole_file) {
  for (const TFileFault fault : {CALL_FAILS, CALL_HALVES}) {
    for (int call = 0; call < CALLS; ++call) {
      make_file("a.state", old_);
      {
        const TFileFaults faults(fault, call);
        save_state("a.state");
      }
      const std::string content = file_content("a.state");
      EXPECT_EQ(content == old_, call >= 5 || (fault == CALL_HALVES && call == 1)) << "call " << call;
      EXPECT_EQ(content.back(), ';');
      EXPECT_EQ(folder_.names(), "a.state drawing.dat");
    }
  }
  EXPECT_EQ(message(), "none");
}

TEST_F(safe_saving, a_process_that_dies_leaves_a_whole_file) {
  int call = 0;
  for (; dies_at_call(call, [] { save_state("a.state"); }); ++call)
    EXPECT_EQ(file_content("a.state"), old_) << "call " << call;
  EXPECT_EQ(call, CALLS);
  EXPECT_NE(file_content("a.state"), old_);
  EXPECT_NE(file_content("a.state").find("R: 10:2.5\r\n"), std::string::npos);
}

TEST_F(safe_saving, a_full_disk_leaves_the_old_file) {
  TTestFolder disk;
  if (::mount("tmpfs", disk.path().c_str(), "tmpfs", 0, "size=64k") != 0)
    GTEST_SKIP() << "no small disk to be had";
  const std::string path = disk.file("a.state");
  make_file(path, old_);
  stores.lists[0].defined = true;
  stores.lists[0].last = LIST_LIMIT - 1;
  for (int i = 0; i < LIST_LIMIT; ++i) stores.lists[0].elements[i] = {1.0 / (i + 3), 2.0 / (i + 7)};
  make_file(disk.file("filler"), std::string(40000, 'x'));
  save_items.checked[SAVE_LISTS] = true;
  save_state(path.c_str());
  EXPECT_EQ(file_content(path), old_);
  EXPECT_EQ(disk.names(), "a.state filler");
  ASSERT_EQ(::unlink(disk.file("filler").c_str()), 0);
  save_state(path.c_str());
  EXPECT_NE(file_content(path), old_);
  EXPECT_EQ(file_content(path).back(), ';');
  EXPECT_EQ(::umount(disk.path().c_str()), 0);
}

TEST_F(safe_saving, a_read_only_folder_keeps_its_file) {
  folder_.give_up_root();
  ASSERT_EQ(::chmod(folder_.path().c_str(), 0500), 0);
  save_state("a.state");
  save_state("b.state");
  EXPECT_EQ(file_content("a.state"), old_);
  EXPECT_EQ(folder_.names(), "a.state drawing.dat");
  EXPECT_EQ(message(), "none");
}

}  // namespace zephyl
