# Warnings for our own code only: linked privately to each of our targets.
add_library(quorvex_warnings INTERFACE)
target_compile_options(quorvex_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wnull-dereference -Werror)
