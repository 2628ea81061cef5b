# What every target of the project is compiled with.
add_library(zephyl_options INTERFACE)
target_compile_options(zephyl_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Werror
  # Texts go into fixed buffers and are cut there on purpose.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-format-truncation>
  # g++ 12 sees overlaps in std::string that aren't there (GCC bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Digits must not depend on whether the compiler fuses a product and a sum.
  -ffp-contract=off
  # Nobody reads errno after a mathematical function.
  -fno-math-errno
  # Floating-point flags are read after operations.
  $<$<CXX_COMPILER_ID:Clang>:-ffp-exception-behavior=maytrap>)
target_include_directories(zephyl_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(ZEPHYL_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # Division of floating-point numbers by zero is part of the calculator's contract: it is read from the status flags.
  list(APPEND sanitizers -fno-sanitize=float-divide-by-zero)
  # Instrumented, g++ sees uninitialized members where there are none (in std::regex, for one).
  list(APPEND sanitizers $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_compile_options(zephyl_options INTERFACE ${sanitizers})
  target_link_options(zephyl_options INTERFACE ${sanitizers})
endif()

if(ZEPHYL_FUZZ)
  # The fuzzer is led by what it has reached in the code of the calculator.
  target_compile_options(zephyl_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
