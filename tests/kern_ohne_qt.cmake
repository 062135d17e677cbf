# Fails when any file of the core includes a Qt header.
file(GLOB_RECURSE dateien ${QUELLEN}/core/* ${QUELLEN}/start/* ${QUELLEN}/records/*
    ${QUELLEN}/engine/* ${QUELLEN}/screen/* ${QUELLEN}/panels/* ${QUELLEN}/reports/*
    ${QUELLEN}/transfer/*)
set(treffer "")
foreach(d ${dateien})
    file(STRINGS ${d} zeilen REGEX "#include[ \t]*<Q")
    if(zeilen)
        list(APPEND treffer "${d}: ${zeilen}")
    endif()
endforeach()
if(treffer)
    message(FATAL_ERROR "Qt im Kern: ${treffer}")
endif()
message(STATUS "Kern ohne Qt: ${CMAKE_CURRENT_LIST_FILE}")
