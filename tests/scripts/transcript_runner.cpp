// transcript_runner FILE           fails, and prints the differences, unless every answer is the one expected
// transcript_runner --renew FILE   prints the differences and makes the answers given the ones expected

#include <cstdio>
#include <cstring>

#include "scripts/transcript.h"

int main(int argc, char** argv) {
  const bool renew = argc == 3 && std::strcmp(argv[1], "--renew") == 0;
  if (argc != 2 && !renew) {
    std::fprintf(stderr, "transcript_runner [--renew] FILE\n");
    return 2;
  }
  zephyl::TTranscript transcript;
  if (!zephyl::read_transcript(argv[argc - 1], transcript) || !zephyl::run_transcript(transcript)) return 2;
  const int differences = zephyl::print_differences(transcript);
  if (renew) return zephyl::write_transcript(transcript) ? 0 : 2;
  return differences == 0 && !transcript.exchanges.empty() ? 0 : 1;
}
