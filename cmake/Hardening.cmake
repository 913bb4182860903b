# What keeps a fault from becoming a way in: tables of addresses can't be written once the program
# runs, the stack is watched, and calls go only where a call may go. Sanitizers do more, and take
# neither; Windows has switches of its own, which its linker sets.
if(NOT WIN32 AND NOT QUORVEX_SANITIZE)
  add_compile_options(-fstack-protector-strong
    "$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    add_compile_options(-fcf-protection=full)
  elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64|arm64")
    add_compile_options(-mbranch-protection=standard)
  endif()
  add_link_options(-Wl,-z,relro,-z,now)
endif()
