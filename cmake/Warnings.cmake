# Warnings for our own code only: linked privately to each of our targets.
add_library(quorvex_warnings INTERFACE)
target_compile_options(quorvex_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wnull-dereference)
# A newer compiler may find more, which must not stop those who only want to use the library.
if(QUORVEX_WERROR)
  target_compile_options(quorvex_warnings INTERFACE -Werror)
endif()

# g++ 12 takes assignments to std::string for overlapping copies (GCC bug 105651). Tools of clang
# that read this compiler's commands don't know that warning.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(quorvex_warnings INTERFACE
    -Wno-restrict -Wno-unknown-warning-option)
endif()
