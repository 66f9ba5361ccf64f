# Makes small trees in FOLDER and runs CHECK on each.

set(zip build/windows/game-2.1.0-windows-x64.zip)
set(tarball build/release/game-2.1.0-linux-x64.tar.gz)
set(tests_zip build/windows/game-2.1.0-windows-x64-tests.zip)

function(write_changelog)
  list(JOIN ARGN "\n\n" text)
  file(WRITE ${FOLDER}/CHANGELOG.md "# Changelog\n\n${text}\n")
endfunction()

function(git)
  execute_process(COMMAND git -c user.name=Nobody -c user.email=nobody@localhost ${ARGN} WORKING_DIRECTORY ${FOLDER}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Committed and packed.
function(write_tree)
  file(REMOVE_RECURSE ${FOLDER})
  file(WRITE ${FOLDER}/CMakeLists.txt "project(game VERSION 2.1.0 LANGUAGES CXX)\n")
  write_changelog("## [Unreleased]" "## [2.1.0] - 2001-03-04" "### Added" "- A door." "## [2.0.0] - 2000-01-02")
  file(WRITE ${FOLDER}/README.md "Unpack game-2.1.0-windows-x64.zip, game-2.1.0-windows-x64-tests.zip or game-2.1.0-linux-x64.tar.gz.\n")
  file(WRITE ${FOLDER}/docs/guide.md "For version 2.1.0, everywhere.\n")
  file(WRITE ${FOLDER}/.gitignore "/build/\n")
  git(init --quiet)
  git(add --all)
  git(commit --quiet --message "A tree")
  file(WRITE ${FOLDER}/${zip} "")
  file(WRITE ${FOLDER}/${tarball} "")
  file(WRITE ${FOLDER}/${tests_zip} "")
endfunction()

function(run_check release exit_code output)
  execute_process(COMMAND ${CMAKE_COMMAND} -D ROOT=${FOLDER} -D RELEASE=${release} -P ${CHECK}
    RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE out)
  # CMake breaks its messages into lines, at another place in every folder.
  string(REGEX REPLACE "[ \n]+" " " out "${out}")
  set(${exit_code} ${code} PARENT_SCOPE)
  set(${output} "${out}" PARENT_SCOPE)
endfunction()

function(expect_pass release what)
  run_check(${release} code output)
  if(NOT code EQUAL 0)
    message(SEND_ERROR "${what} was refused:\n${output}")
  endif()
endfunction()

function(expect_fault release what words)
  run_check(${release} code output)
  string(FIND "${output}" "${words}" at)
  if(code EQUAL 0 OR at EQUAL -1)
    message(SEND_ERROR "${what}: exit code ${code} and not the words \"${words}\" in:\n${output}")
  endif()
endfunction()

write_tree()
expect_pass(OFF "A tree of one version")
expect_pass(ON "A tree that is committed and packed")

file(WRITE ${FOLDER}/CMakeLists.txt "project(game VERSION 2.2.0 LANGUAGES CXX)\n")
expect_fault(OFF "A version that nobody told" "CHANGELOG.md tells 2.1.0 as the newest release, CMakeLists.txt 2.2.0")
expect_fault(OFF "A guide of another version" "docs/guide.md does not say \"For version 2.2.0,\"")
expect_fault(OFF "Another archive's name" "README.md does not say \"game-2.2.0-windows-x64.zip\"")
expect_fault(OFF "Another archive's name for Linux" "README.md does not say \"game-2.2.0-linux-x64.tar.gz\"")
expect_fault(OFF "Another name of the tests" "README.md does not say \"game-2.2.0-windows-x64-tests.zip\"")

write_tree()
write_changelog("## [Unreleased]" "### Fixed" "- A window." "## [2.1.0] - 2001-03-04")
expect_pass(OFF "Changes on the way")
expect_fault(ON "Changes without a version" "entries under \"Unreleased\"")
expect_fault(ON "Changes without a commit" "Not everything is committed: M CHANGELOG.md")

write_changelog("## [2.1.0] - 2001-03-04")
expect_fault(OFF "No place for changes" "does not begin with \"## [Unreleased]\"")
write_changelog("## [Unreleased]" "## [2.1.0] - 2001-03-04" "## [2.1.1] - 2001-05-06")
expect_fault(OFF "The newest below" "CHANGELOG.md tells 2.1.1 below 2.1.0")
write_changelog("## [Unreleased]" "## [2.1.0]")
expect_fault(OFF "A release without a date" "odd heading: ## [2.1.0]")
write_changelog("## [Unreleased]" "## [2.1.0] - 2001-03-04" "### News")
expect_fault(OFF "Another kind of heading" "odd heading: ### News")

write_tree()
file(REMOVE ${FOLDER}/${tests_zip})
expect_fault(ON "No tests packed" "not just game-2.1.0-windows-x64-tests.zip")
file(REMOVE ${FOLDER}/${zip})
expect_fault(ON "Nothing packed" "build/windows holds \"\"")
file(WRITE ${FOLDER}/build/windows/game-2.0.0-windows-x64.zip "")
expect_fault(ON "Another version packed" "build/windows holds \"game-2.0.0-windows-x64.zip\"")

write_tree()
file(REMOVE ${FOLDER}/${tarball})
expect_fault(ON "Nothing packed for Linux" "build/release holds \"\"")

foreach(archive IN ITEMS ${zip} ${tests_zip} ${tarball})
  write_tree()
  execute_process(COMMAND touch -d 2000-01-01 ${FOLDER}/${archive} COMMAND_ERROR_IS_FATAL ANY)
  expect_fault(ON "Packed before the last commit" "${archive} is older than the last commit")
endforeach()

file(REMOVE_RECURSE ${FOLDER})
file(WRITE ${FOLDER}/CMakeLists.txt "project(game LANGUAGES CXX)\n")
expect_fault(OFF "A tree without a version" "tells no version")
file(REMOVE_RECURSE ${FOLDER})
