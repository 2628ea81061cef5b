#include "programs/output_files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "persistence/file_calls.h"
#include "persistence/text_file.h"
#include "programs/program.h"
#include "programs/program_files.h"

namespace zephyl {

namespace {

constexpr int NOT_OPEN = -1;

struct TOutputFile {
  char name[PROGRAM_NAME_LENGTH] = "";
  int file = NOT_OPEN;
  off_t size = 0;
};

struct TOutputFiles {
  TOutputFile rows[OUTPUT_FILE_LIMIT];
  int count = 0;
};
TOutputFiles output;

// Opened at the first use within a run, with any old file gone. Null when there are too many.
TOutputFile* file_of(const char* program_name) {
  for (int i = 0; i < output.count; ++i)
    if (std::strcmp(output.rows[i].name, program_name) == 0) return &output.rows[i];
  if (output.count == OUTPUT_FILE_LIMIT) return nullptr;
  TOutputFile& row = output.rows[output.count++];
  std::snprintf(row.name, sizeof row.name, "%s", program_name);
  row.file = open_data_file(output_path(program_name), FILE_WRITE);
  row.size = 0;
  return &row;
}

bool write_all(int file, const std::string& line) {
  for (std::size_t done = 0; done < line.size();) {
    const ssize_t written = file_calls.write(file, line.data() + done, line.size() - done);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    done += static_cast<std::size_t>(written);
  }
  return true;
}

// A full disk ends the file: no line stands in it in part.
void write_whole(TOutputFile& row, const std::string& line) {
  if (write_all(row.file, line)) {
    row.size += static_cast<off_t>(line.size());
    return;
  }
  file_calls.cut(row.file, row.size);
  file_calls.close(row.file);
  row.file = NOT_OPEN;
}

}  // namespace

void write_output(const char* program_name, const std::string& line) {
  TOutputFile* const row = file_of(program_name);
  if (row && row->file != NOT_OPEN) write_whole(*row, line);
}

void close_output_files() {
  for (int i = 0; i < output.count; ++i)
    if (output.rows[i].file != NOT_OPEN) file_calls.close(output.rows[i].file);
  output.count = 0;
}

}  // namespace zephyl
