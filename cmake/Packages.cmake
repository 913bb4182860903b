# For Windows it is one zip file, for whoever has no more than a spreadsheet there.
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME quorvex-${PROJECT_VERSION}-windows-x64)
  set(CPACK_COMPONENTS_ALL windows)
  set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
  set(CPACK_STRIP_FILES ON)
  include(CPack)
  return()
endif()

# `cpack` in the build folder, or the target `package`, makes Debian packages: the library, what is
# needed to build against it, the tool, and the extension for Calc where that is built.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "The Quorvex developers")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <quorvex@localhost>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(library_package lib${PROJECT_NAME}${PROJECT_VERSION_MAJOR})
string(TOLOWER ${library_package} library_package)
set(same_version "${library_package} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIB_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIB_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIB_DESCRIPTION
  "${PROJECT_DESCRIPTION}: the library\n Arithmetic on numbers held as text, exact to as many digits as asked for.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libquorvex-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_DEV_DESCRIPTION
  "${PROJECT_DESCRIPTION}: development files\n Headers in C++, with packages for CMake and pkg-config.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME quorvex)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION math)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_TOOL_DESCRIPTION
  "${PROJECT_DESCRIPTION}: the tool\n A command-line calculator with a small spreadsheet of its own.")

# The extension brings the library along.
set(CPACK_DEBIAN_CALC_PACKAGE_NAME quorvex-calc)
set(CPACK_DEBIAN_CALC_PACKAGE_SECTION math)
set(CPACK_DEBIAN_CALC_PACKAGE_DEPENDS "libreoffice-calc | libreoffice-calc-nogui")
set(CPACK_COMPONENT_CALC_DESCRIPTION
  "${PROJECT_DESCRIPTION}: the extension for LibreOffice Calc\n To be installed in the office by: unopkg add --shared /usr/share/quorvex/quorvex.oxt")

set(CPACK_COMPONENTS_ALL lib dev)
if(QUORVEX_TOOL)
  list(APPEND CPACK_COMPONENTS_ALL tool)
endif()

if(QUORVEX_CALC)
  list(APPEND CPACK_COMPONENTS_ALL calc)
endif()

# Every package has its folder of documentation, with all that the README links to, which a library
# that came as a part of something else leaves to that.
if(PROJECT_IS_TOP_LEVEL)
  find_program(GZIP gzip REQUIRED)
  add_custom_command(OUTPUT changelog.gz
    COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md > changelog.gz
    DEPENDS CHANGELOG.md VERBATIM)
  file(GLOB pages RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS docs/*.md)
  list(APPEND pages README.md bench/README.md)
  set(installed_pages ${PROJECT_BINARY_DIR}/pages)
  list(TRANSFORM pages PREPEND ${installed_pages}/ OUTPUT_VARIABLE made_pages)
  list(TRANSFORM pages PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE given_pages)
  add_custom_command(OUTPUT ${made_pages}
    COMMAND ${CMAKE_COMMAND} "-DPAGES=${pages}" -DFROM=${PROJECT_SOURCE_DIR} -DTO=${installed_pages}
      -P ${PROJECT_SOURCE_DIR}/cmake/InstalledPages.cmake
    DEPENDS ${given_pages} cmake/InstalledPages.cmake VERBATIM)
  add_custom_target(quorvex_pages ALL DEPENDS changelog.gz ${made_pages})
  foreach(component ${CPACK_COMPONENTS_ALL})
    string(TOUPPER ${component} name)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    install(FILES cmake/copyright ${PROJECT_BINARY_DIR}/changelog.gz
      DESTINATION ${folder} COMPONENT ${component})
    install(DIRECTORY ${installed_pages}/ DESTINATION ${folder} COMPONENT ${component})
    install(DIRECTORY docs examples DESTINATION ${folder} COMPONENT ${component}
      FILES_MATCHING REGEX "\\.(svg|png|csv|ods|cpp)$" PATTERN CMakeLists.txt)
  endforeach()
endif()
include(CPack)
