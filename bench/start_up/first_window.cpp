// first-window PROGRAM...: starts a program and prints how many milliseconds pass until its first window is
// mapped on the X display, and after a moment of rest how many kilobytes of memory are its own and how many
// it has resident. Then ends it.

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace {

using TClock = std::chrono::steady_clock;

constexpr auto REST = std::chrono::milliseconds(500);

// A connection that is told of every window of the display that is mapped.
xcb_connection_t* watch_display() {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(connection)) return nullptr;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
  // An answer means that the server has taken up the request before this.
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
  return connection;
}

bool wait_for_window(xcb_connection_t* connection) {
  while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
    const bool mapped = (event->response_type & 0x7F) == XCB_MAP_NOTIFY;
    std::free(event);
    if (mapped) return true;
  }
  return false;
}

// The kilobytes that a file of /proc/PID names, summed over its lines of that name.
long kilobytes(pid_t process, const char* file, const char* name) {
  const std::string path = "/proc/" + std::to_string(process) + "/" + file;
  std::FILE* lines = std::fopen(path.c_str(), "r");
  if (!lines) return -1;
  char line[300];
  long sum = 0;
  while (std::fgets(line, sizeof line, lines))
    if (std::strncmp(line, name, std::strlen(name)) == 0) sum += std::atol(line + std::strlen(name));
  std::fclose(lines);
  return sum;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::fprintf(stderr, "usage: first-window PROGRAM...\n");
    return 2;
  }
  xcb_connection_t* connection = watch_display();
  if (!connection) {
    std::fprintf(stderr, "first-window: there is no X display\n");
    return 1;
  }
  const TClock::time_point start = TClock::now();
  const pid_t process = fork();
  if (process == 0) {
    execv(arguments[1], arguments + 1);
    std::perror(arguments[1]);
    _exit(127);
  }
  if (!wait_for_window(connection)) return 1;
  const double elapsed = std::chrono::duration<double, std::milli>(TClock::now() - start).count();
  std::this_thread::sleep_for(REST);
  const long own = kilobytes(process, "smaps_rollup", "Private_Clean:") +
                   kilobytes(process, "smaps_rollup", "Private_Dirty:");
  std::printf("%.1f %ld %ld\n", elapsed, own, kilobytes(process, "status", "VmRSS:"));
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
  return 0;
}
