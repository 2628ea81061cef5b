// Variables are local to a run: a frame for each level of it keeps what they were, and gives it back when the
// level ends. What is made global is changed in all frames, and so stays.
#pragma once

namespace zephyl {

struct ListRecord;
struct MatrixRecord;
struct TString;

// One for the program from the keypad, one for each call and one for each function.
constexpr int FRAME_LIMIT = 110;

int frame_count();
// Takes all scalar memories down; reports ERR_MEMORY_LIMIT and gives false when there are too many.
bool push_frame();
// Gives back what the last frame keeps.
void pop_frame();
void pop_frames_to(int count);

// Before the store of a slot (90 to 129) changes: its value goes into the last frame, once. Of the function
// slots, 110 to 118, it is the working copy. Reports ERR_MEMORY_LIMIT when there is no room.
void keep_store(int slot);

// The value of a variable (slot 0 to 109, 120 to 129) stays when the run ends. Reports ERR_MEMORY_LIMIT when
// there is no room.
void make_slot_global(int slot);

// A store, 0 to 9, as it was when the last frame was pushed; null if it was undefined then.
const ListRecord* list_at_begin(int index);
const MatrixRecord* matrix_at_begin(int index);
const TString* string_at_begin(int index);

// All frames gone, nothing given back.
void reset_scopes();

}  // namespace zephyl
