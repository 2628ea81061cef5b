#include "persistence/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "persistence/file_calls.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr char CR = '\r';
constexpr char LF = '\n';

std::string folder_of(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  return separator == std::string::npos ? "" : path.substr(0, separator + 1);
}

// The file that a path with links in it stands for; the path itself if there is none yet.
std::string without_links(const std::string& path) {
  char* const whole = ::realpath(path.c_str(), nullptr);
  if (!whole) return path;
  std::string result(whole);
  std::free(whole);
  return result;
}

// The permissions of a file that is there, else those of a new one.
mode_t permissions_of(const std::string& path) {
  struct stat status;
  return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0666;
}

// Whoever write-protected a file meant it, though its folder would let a new one take its place.
bool is_protected(const std::string& path) { return file_exists(path) && ::access(path.c_str(), W_OK) != 0; }

bool is_regular(int file) {
  struct stat status;
  return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

// In pieces, as a signal or the system cuts them.
bool write_all(int file, const std::string& content) {
  for (std::size_t done = 0; done < content.size();) {
    const ssize_t count = file_calls.write(file, content.data() + done, content.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    done += static_cast<std::size_t>(count);
  }
  return true;
}

// Some file systems have nothing to flush and say so.
bool flush(int file) { return file_calls.sync(file) == 0 || errno == EINVAL || errno == ENOSYS; }

// A name in the folder of the target that no other process takes. Short, so that it fits where the target's
// does.
std::string temporary_path(const std::string& path) {
  return folder_of(path) + "zephyl-" + std::to_string(::getpid()) + ".tmp";
}

// Anew, even where a process that died has left one of the same name.
int open_temporary(const std::string& path, mode_t permissions) {
  constexpr int FLAGS = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  const int file = file_calls.open(path.c_str(), FLAGS, permissions);
  if (file >= 0 || errno != EEXIST || file_calls.remove(path.c_str()) != 0) return file;
  return file_calls.open(path.c_str(), FLAGS, permissions);
}

bool write_and_close(int file, const std::string& content) {
  const bool written = write_all(file, content) && flush(file);
  return file_calls.close(file) == 0 && written;
}

int flags_of(int kind) {
  switch (kind) {
    case FILE_READ:
      return O_RDONLY | O_NONBLOCK;  // a pipe without a writer must not hold the calculator up
    case FILE_WRITE:
      return O_WRONLY | O_CREAT | O_TRUNC;
    case FILE_APPEND:
      return O_RDWR | O_CREAT | O_APPEND;
    default:
      return -1;
  }
}

}  // namespace

std::string data_file_path(const std::string& name, const std::string& extension, bool beside) {
  std::string folder = platform().data_folder();
  if (!beside) {
    folder += "/programs";
    file_calls.make_folder(folder.c_str(), 0777);
  }
  return folder + '/' + name + '.' + extension;
}

int open_data_file(const std::string& path, int kind) {
  const int flags = flags_of(kind);
  if (flags < 0) {
    platform().show_message("open type not correct", "f_open problem");
    return -1;
  }
  const int file = file_calls.open(path.c_str(), flags | O_CLOEXEC, 0666);
  if (file < 0 || kind != FILE_READ || is_regular(file)) return file;
  file_calls.close(file);
  return -1;
}

bool file_exists(const std::string& path) {
  struct stat status;
  return ::stat(path.c_str(), &status) == 0;
}

TLineReader::TLineReader(const std::string& path) : file_(open_data_file(path, FILE_READ)), bytes_(buffer_) {}

TLineReader::~TLineReader() {
  if (file_ >= 0) file_calls.close(file_);
}

bool TLineReader::refill() {
  if (file_ < 0) return false;
  ssize_t count;
  do count = file_calls.read(file_, buffer_, BUFFER_SIZE);
  while (count < 0 && errno == EINTR);
  next_ = 0;
  end_ = count > 0 ? static_cast<std::size_t>(count) : 0;
  return end_ > 0;
}

bool TLineReader::at_end() { return next_ == end_ && !refill(); }

int TLineReader::read_byte() {
  if (at_end()) return -1;
  return static_cast<unsigned char>(bytes_[next_++]);
}

const std::string& TLineReader::read_line() {
  line_.clear();
  bool too_long = false;
  while (!at_end()) {
    const char byte = bytes_[next_++];
    if (byte == CR) break;
    if (byte == LF) continue;
    too_long = too_long || line_.size() + 1 == LINE_LIMIT;
    if (!too_long) line_ += byte;
  }
  if (too_long) line_.clear();
  return line_;
}

void append_line(std::string& text, const std::string& line) { (text += line) += "\r\n"; }

bool write_file(const std::string& path, const std::string& content) {
  const std::string target = without_links(path);
  if (is_protected(target)) return false;
  const std::string temporary = temporary_path(target);
  const int file = open_temporary(temporary, permissions_of(target));
  if (file < 0) return false;
  if (write_and_close(file, content) && file_calls.rename(temporary.c_str(), target.c_str()) == 0)
    return true;
  file_calls.remove(temporary.c_str());
  return false;
}

bool append_to_file(const std::string& path, const std::string& content) {
  const int file = open_data_file(path, FILE_APPEND);
  if (file < 0) return false;
  const off_t old_size = ::lseek(file, 0, SEEK_END);
  const bool written = write_all(file, content);
  if (!written && old_size >= 0) file_calls.cut(file, old_size);
  return file_calls.close(file) == 0 && written;
}

}  // namespace zephyl
