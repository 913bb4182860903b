# cmake -DPAGES=... -DFROM=FOLDER -DTO=FOLDER -P InstalledPages.cmake: the pages as they are read
# without the sources. They stand as they do there, so that links between them work; what links to
# sources is left its words, and the list of changes is the packed one beside the pages.
foreach(page IN LISTS PAGES)
  file(READ ${FROM}/${page} text)
  string(REGEX REPLACE "\\[([^]]*)\\]\\((\\.\\./)?(src|apps|hosts|tests)(/[^)]*)?\\)" "\\1" text "${text}")
  string(REGEX REPLACE "\\]\\(((\\.\\./)?)CHANGELOG\\.md\\)" "](\\1changelog.gz)" text "${text}")
  file(WRITE ${TO}/${page} "${text}")
endforeach()
