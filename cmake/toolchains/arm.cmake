# Cross-building for Linux on 64-bit ARM with Debian's cross compilers.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(arm_tools aarch64-linux-gnu)

set(CMAKE_C_COMPILER ${arm_tools}-gcc)
set(CMAKE_CXX_COMPILER ${arm_tools}-g++)

set(CMAKE_FIND_ROOT_PATH /usr/${arm_tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(what LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${what} ONLY)
endforeach()
