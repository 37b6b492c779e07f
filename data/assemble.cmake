# Copies the hand-written files into the program folder. The notes file is the
# level editor's: once the folder has one, it is the maker's and stays.
file(GLOB_RECURSE sources RELATIVE ${SOURCE} ${SOURCE}/*)
foreach(relative IN LISTS sources)
  set(target ${DESTINATION}/${relative})
  if(relative STREQUAL "notes.ubc" AND EXISTS ${target})
    continue()
  endif()
  configure_file(${SOURCE}/${relative} ${target} COPYONLY)
endforeach()
