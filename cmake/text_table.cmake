# Writes the files under a folder as one C++ table of named texts (engine/text_resources.h), sorted by name.
#   cmake -D folder=FOLDER -D output=FILE -P text_table.cmake
# A file's name is its path below the folder without the extension. Lines end in CR LF in the table, however they end
# in the file.
include(${CMAKE_CURRENT_LIST_DIR}/text_bytes.cmake)

file(GLOB_RECURSE paths RELATIVE ${folder} ${folder}/*)
list(SORT paths)

set(arrays "")
set(rows "")
set(count 0)
foreach(path IN LISTS paths)
  text_bytes(${folder}/${path} bytes)
  string(REGEX REPLACE "\\.[^./]*$" "" name "${path}")
  string(APPEND arrays "const unsigned char text_${count}[] = {\n${bytes}0};\n")
  string(APPEND rows "    {\"${name}\", reinterpret_cast<const char*>(text_${count}), sizeof text_${count} - 1},\n")
  math(EXPR count "${count} + 1")
endforeach()

file(WRITE ${output}.new
"#include \"engine/text_resources.h\"

namespace zephyl {

namespace {

${arrays}
}  // namespace

const TTextResource text_resources[] = {
${rows}    {nullptr, nullptr, 0}};
const int text_resource_count = ${count};

}  // namespace zephyl
")
file(RENAME ${output}.new ${output})
