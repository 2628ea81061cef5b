// manual_runner PAGE              replays the examples of a page of the manual; fails, and prints page and line, for each
//                                 one that shows something else than the page says, and for a page without examples
// manual_runner --pictures PAGE   the same, and what the page paints becomes its pictures in docs/pictures

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "manual/manual_page.h"

namespace {

// In a process of its own, since a calculator starts afresh only once.
bool session_holds(const zephyl::TManualPage& page, const zephyl::TManualSession& session, bool keep_pictures) {
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    const int failing = zephyl::count_failing_examples(page.path, session, page.programs, keep_pictures);
    std::fflush(stdout);
    _exit(failing == 0 ? 0 : 1);
  }
  int status = 1;
  if (child < 0 || waitpid(child, &status, 0) != child) return false;
  if (WIFSIGNALED(status))
    std::printf("%s:%d: the calculator crashes\n", page.path.c_str(),
                session.empty() ? 0 : session.front().line);
  return status == 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool keep_pictures = argc == 3 && std::strcmp(argv[1], "--pictures") == 0;
  if (argc != (keep_pictures ? 3 : 2)) {
    std::fprintf(stderr, "manual_runner [--pictures] PAGE\n");
    return 2;
  }
  const char* const path = argv[argc - 1];
  const zephyl::TManualPage page = zephyl::read_manual_page(path);
  for (const std::string& fault : page.faults) std::printf("%s\n", fault.c_str());
  if (page.sessions.empty()) std::printf("%s: no examples\n", path);
  bool good = page.faults.empty() && !page.sessions.empty();
  for (const zephyl::TManualSession& session : page.sessions)
    good = session_holds(page, session, keep_pictures) && good;
  return good ? 0 : 1;
}
