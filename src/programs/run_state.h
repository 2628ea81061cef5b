// What is under way: the program that runs, its blocks, subroutines and calls, and the functions that
// interrupted it.
#pragma once

#include <cstdint>

#include "programs/program.h"

namespace zephyl {

constexpr int BLOCK_LIMIT = 100;
constexpr int GOSUB_LIMIT = 100;
constexpr int CALL_LIMIT = 100;
constexpr int NEST_LIMIT = 5;  // custom functions within one another
constexpr std::uint16_t NO_ELSE = 65535;
constexpr const char* RUNNING_TEXT = "Running...";  // the result line of a program that has nothing to show

enum TBlockKind : std::uint8_t { BLOCK_WHILE = 0, BLOCK_IF = 1, BLOCK_LOOP = 2 };

struct TBlock {
  TBlockKind kind = BLOCK_IF;
  std::uint16_t start = 0;              // the first statement of the body
  std::uint16_t after_end = 0;          // the one after the matching `end`
  std::uint16_t else_target = NO_ELSE;  // the one after the matching `else`
  double limit = 0.0;                   // of a loop
};

// The program that runs, and how much of the stacks is its own: what lies below belongs to those that wait
// for it.
struct TRunningPart {
  char name[PROGRAM_NAME_LENGTH] = "";
  bool built_in = false;
  int pc = 0;           // the next statement
  int block_count = 0;  // open blocks
  int gosub_count = 0;
};

// Where a run stands: its program and the tops of the stacks.
struct TRunPlace {
  TRunningPart part;
  int block_top = 0;
  int gosub_top = 0;
  int call_top = 0;
  int call_base = 0;  // calls below it belong to those that wait for this function
};

// One that waits for a function, as it was left.
struct TWaitingPart {
  TRunPlace place;
  bool program_running = false;
  bool at_prompt = false;
  bool at_function_prompt = false;
  bool key_wait = false;
};

struct TRun : TRunPlace {
  int level = 0;  // run_level: 0 no program, 1 one from the keypad or a function, above 1 functions within
  bool key_run = false;  // the one of level 1 came from the keypad
  TBlock blocks[BLOCK_LIMIT];
  std::uint16_t gosubs[GOSUB_LIMIT];
  TRunningPart calls[CALL_LIMIT];
  TWaitingPart waiting[NEST_LIMIT];
  int waiting_count = 0;
  char title[PROGRAM_NAME_LENGTH] = "";        // the program that came from the keypad
  char prompt_line[STATEMENT_TEXT_SIZE] = "";  // shown in the place of the entry line
  int in_target = 0;  // the memory slot that the prompt asks for, 0 to 8 of a function
};
extern TRun run;

// A function called from an expression, or from a program: nobody sees what it shows.
inline bool in_custom_function() { return run.level > 1 || (run.level == 1 && !run.key_run); }

void reset_run();

}  // namespace zephyl
