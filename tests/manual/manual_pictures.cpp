#include "manual/manual_pictures.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "platform/surface.h"
#include "support/png_reader.h"

namespace zephyl {

namespace {

const std::string COMMAND = "png ";

std::string name_of(const std::string& command) { return command.substr(COMMAND.size()); }
std::string kept_path(const std::string& command) { return KEPT_PICTURES "/" + name_of(command); }
std::string painted_path(const std::string& command) { return PAINTED_PICTURES "/" + name_of(command); }

bool same_picture(const TSurface& a, const TSurface& b) {
  return a.width() == b.width() && a.height() == b.height() &&
         std::equal(a.pixels(), a.pixels() + a.width() * a.height(), b.pixels());
}

}  // namespace

bool makes_picture(const std::string& command) { return command.compare(0, COMMAND.size(), COMMAND) == 0; }

std::string picture_command(const std::string& command, bool keep) {
  std::error_code ignored;
  std::filesystem::create_directories(keep ? KEPT_PICTURES : PAINTED_PICTURES, ignored);
  return COMMAND + (keep ? kept_path(command) : painted_path(command));
}

std::string picture_fault(const std::string& command) {
  const std::optional<TSurface> kept = read_png(kept_path(command).c_str());
  if (!kept) return "there is no picture " + kept_path(command);
  const std::optional<TSurface> painted = read_png(painted_path(command).c_str());
  if (!painted) return "no picture was written";
  return same_picture(*kept, *painted) ? "" : "the picture is another: " + painted_path(command);
}

}  // namespace zephyl
