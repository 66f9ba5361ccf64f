# Builds small houses in FOLDER and runs CHECK on each.

function(write_house)
  file(REMOVE_RECURSE ${FOLDER})
  file(WRITE ${FOLDER}/CMakeLists.txt
    "\ntarnwell_room(cellar)\ntarnwell_room(kitchen USES cellar)\ntarnwell_room(shed/\${system} USES cellar)\n"
    "tarnwell_room(attic\n  USES kitchen shed/\${system}\n  LINKS Roof::Tiles)\n")
  file(WRITE ${FOLDER}/cellar/wine.cpp "#include <vector>\n#include \"cellar/wine.h\"\n")
  file(WRITE ${FOLDER}/cellar/wine.h "")
  file(WRITE ${FOLDER}/kitchen/stove.cpp "#include \"cellar/wine.h\"\n")
  file(WRITE ${FOLDER}/shed/posix/tools.cpp "#include \"cellar/wine.h\"\n")
  file(WRITE ${FOLDER}/shed/windows/tools.cpp "#include \"cellar/wine.h\"\n")
  file(WRITE ${FOLDER}/attic/bed.cpp
    "#include \"kitchen/stove.h\"\n#include \"cellar/wine.h\"\n#include \"shed/posix/tools.h\"\n")
endfunction()

function(run_check exit_code output)
  execute_process(COMMAND ${CMAKE_COMMAND} -D SOURCES=${FOLDER} -P ${CHECK}
    RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE out)
  # CMake breaks its messages into lines, at another place in every folder.
  string(REGEX REPLACE "[ \n]+" " " out "${out}")
  set(${exit_code} ${code} PARENT_SCOPE)
  set(${output} "${out}" PARENT_SCOPE)
endfunction()

function(expect_pass what)
  run_check(code output)
  if(NOT code EQUAL 0)
    message(SEND_ERROR "${what} was refused:\n${output}")
  endif()
endfunction()

function(expect_fault what words)
  run_check(code output)
  string(FIND "${output}" "${words}" at)
  if(code EQUAL 0 OR at EQUAL -1)
    message(SEND_ERROR "${what}: exit code ${code} and not the words \"${words}\" in:\n${output}")
  endif()
endfunction()

write_house()
expect_pass("A house in order")

file(APPEND ${FOLDER}/cellar/wine.h "#include \"attic/bed.h\" // a short cut\n")
expect_fault("An include that climbs up" "cellar/wine.h includes from attic, which cellar may not use")

write_house()
file(APPEND ${FOLDER}/kitchen/stove.cpp "#include \"shed/posix/tools.h\"\n")
expect_fault("An include of a room beside" "kitchen/stove.cpp includes from shed/posix, which kitchen may not use")

write_house()
file(APPEND ${FOLDER}/shed/windows/tools.cpp "#include \"kitchen/stove.h\"\n")
expect_fault("An include for the other system" "shed/windows/tools.cpp includes from kitchen")

write_house()
file(APPEND ${FOLDER}/CMakeLists.txt "tarnwell_room(gate USES garden)\n")
expect_fault("A line that names a room from further up or from nowhere" "gate uses garden, which is no room below it")

write_house()
file(WRITE ${FOLDER}/garden/rose.cpp "")
expect_fault("A folder that no line declares" "garden/rose.cpp lies in no room")

file(REMOVE_RECURSE ${FOLDER})
file(WRITE ${FOLDER}/CMakeLists.txt "add_library(everything)\n")
expect_fault("A house without rooms" "declares no rooms")
file(REMOVE_RECURSE ${FOLDER})
