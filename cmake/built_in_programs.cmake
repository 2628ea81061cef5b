# Joins the built-in programs to the one text of programs/built_in_programs.h.
#   cmake -D folder=FOLDER -D output=FILE -P built_in_programs.cmake
# One program a file, in the order of their names; "End Programs" stands last and closes the text. Lines end in CR LF in
# the text, however they end in the file.
include(${CMAKE_CURRENT_LIST_DIR}/text_bytes.cmake)

file(GLOB names RELATIVE ${folder} ${folder}/*.prgm)
list(SORT names CASE INSENSITIVE)
list(REMOVE_ITEM names "End Programs.prgm")
list(APPEND names "End Programs.prgm")

set(text "")
foreach(name IN LISTS names)
  text_bytes("${folder}/${name}" bytes)
  string(APPEND text "${bytes}")
endforeach()

file(WRITE ${output}.new
"#include \"programs/built_in_programs.h\"

namespace zephyl {

namespace {

const unsigned char text[] = {
${text}0};

}  // namespace

const char* built_in_text() { return reinterpret_cast<const char*>(text); }
std::size_t built_in_size() { return sizeof text - 1; }

}  // namespace zephyl
")
file(RENAME ${output}.new ${output})
