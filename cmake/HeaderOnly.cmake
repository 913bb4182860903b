# find_header_only(PACKAGE TARGET FOLDER): finds a package that is headers alone. For another system
# than this one they are taken from here, but not by the folder where they lie: in that one are this
# system's own headers as well.
function(find_header_only package target folder)
  if(NOT CMAKE_CROSSCOMPILING)
    find_package(${package} REQUIRED)
    return()
  endif()
  find_path(QUORVEX_${package}_HEADERS ${folder} PATHS /usr/include /usr/local/include REQUIRED
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  set(links ${CMAKE_BINARY_DIR}/headers/${package})
  file(MAKE_DIRECTORY ${links})
  file(CREATE_LINK ${QUORVEX_${package}_HEADERS}/${folder} ${links}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} SYSTEM INTERFACE ${links})
endfunction()
