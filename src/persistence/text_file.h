// The text file layer: where the data files lie, how their lines are read, and how a file is written so that
// it is either the old one or the new one, whole, whatever happens on the way. Failures are silent here: a
// function tells its caller, and most callers tell nobody.
#pragma once

#include <cstddef>
#include <string>

namespace zephyl {

// A line of this length or more is no line: it reads as an empty one, which every reader takes as its end.
constexpr std::size_t LINE_LIMIT = 1059;

// Numbers that `open_data_file` takes.
enum TFileKind { FILE_READ = 0, FILE_WRITE = 1, FILE_APPEND = 2 };

// "DATA FOLDER/name.extension" if `beside`, else the same in its folder "programs", which is made if it isn't
// there. name: without a separator; the caller answers for that.
std::string data_file_path(const std::string& name, const std::string& extension, bool beside);

// Opens a file through `file_calls`: its number, or -1. Writing makes it anew, appending keeps what it holds;
// only regular files are read. Another kind reports "open type not correct".
int open_data_file(const std::string& path, int kind);

bool file_exists(const std::string& path);

// Reads lines out of a file or a text in memory. A line ends with CR; LF counts for nothing, wherever it
// stands; the last line may lack its CR. Every byte from 1 to 255 but these two is part of its line.
class TLineReader {
 public:
  // A file that can't be opened reads as an empty one; see `open`.
  explicit TLineReader(const std::string& path);
  // bytes: must live as long as the reader.
  TLineReader(const char* bytes, std::size_t size) : bytes_(bytes), end_(size) {}
  ~TLineReader();
  TLineReader(const TLineReader&) = delete;
  TLineReader& operator=(const TLineReader&) = delete;

  // The file is there and could be opened.
  bool open() const { return file_ >= 0; }

  // The next line without its end, good until the next call. Empty at an empty line, at one of LINE_LIMIT
  // characters or more (which is passed over as a whole), and at the end; `at_end` tells the last from the
  // others.
  const std::string& read_line();
  // All has been read.
  bool at_end();

  // The next byte behind the line, -1 at the end: for what is no text in a text file.
  int read_byte();

 private:
  bool refill();

  static constexpr std::size_t BUFFER_SIZE = 4096;

  int file_ = -1;
  const char* bytes_ = nullptr;  // what of the source is in memory: all of a text, the buffer of a file
  std::size_t next_ = 0, end_ = 0;
  std::string line_;
  char buffer_[BUFFER_SIZE];
};

// Adds a line with its end, CR LF.
void append_line(std::string& text, const std::string& line);

// Makes `content` the content of the file: writes it under another name in the same folder, flushes it and
// gives it the file's name. False if any of this failed; the old file is then as it was and nothing else is
// left behind. A link is followed; the file keeps its permissions.
bool write_file(const std::string& path, const std::string& content);

// Adds to the end of a file, which is made if it isn't there. False on failure; what the file held is still
// there, and nothing but it where the disk was full.
bool append_to_file(const std::string& path, const std::string& content);

}  // namespace zephyl
