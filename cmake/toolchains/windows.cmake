# Cross-building for 64-bit Windows with the compilers of MinGW-w64. Of the two thread models only
# the one called posix has the standard library's threads and mutexes.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(windows_tools x86_64-w64-mingw32)

set(CMAKE_C_COMPILER ${windows_tools}-gcc-posix)
set(CMAKE_CXX_COMPILER ${windows_tools}-g++-posix)
set(CMAKE_RC_COMPILER ${windows_tools}-windres)
# Makes type libraries from interface descriptions.
set(QUORVEX_WIDL ${windows_tools}-widl CACHE STRING "The compiler of interface descriptions")

# The compiler's own libraries are taken in, so that nothing but what Windows has is imported.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()

set(CMAKE_FIND_ROOT_PATH /usr/${windows_tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(what LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${what} ONLY)
endforeach()
