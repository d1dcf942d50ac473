file(REMOVE_RECURSE ${SCRATCH})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
  endif()
endfunction()

# Builds a project against the prefix, and compares what its program prints when it runs among the examples.
function(expect_output project program expected)
  set(build ${SCRATCH}/build-${program})
  run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${project} -B ${build} -D CMAKE_PREFIX_PATH=${SCRATCH}/prefix -D
      "CMAKE_CXX_FLAGS=${FLAGS}")
  run(${CMAKE_COMMAND} --build ${build})
  execute_process(COMMAND ${build}/${program} WORKING_DIRECTORY ${SOURCE}/examples OUTPUT_VARIABLE output
                  RESULT_VARIABLE status)
  if(NOT status EQUAL 0 OR NOT output STREQUAL expected)
    message(FATAL_ERROR "${program} ended with ${status} and printed:\n${output}")
  endif()
endfunction()

# Makes a project of what the README says about embedding: its C++ block becomes the content of main.
function(make_readme_project folder)
  file(READ ${SOURCE}/README.md readme)
  string(REGEX MATCH "find_package\\([^\n]*" find_line "${readme}")
  string(REGEX MATCH "target_link_libraries\\([^\n]*" link_line "${readme}")
  string(REGEX MATCH "```cpp\n([^`]*)```" fenced "${readme}")
  set(block "${CMAKE_MATCH_1}")
  string(REGEX MATCH "^(#include [^\n]*\n)+" includes "${block}")
  string(REPLACE "${includes}" "" statements "${block}")
  file(WRITE ${folder}/main.cpp "${includes}#include <iostream>\nint main() {\n${statements}"
                                "std::cout << objects.Size() << '\\n';\n}\n")
  file(WRITE ${folder}/CMakeLists.txt
       "cmake_minimum_required(VERSION 3.25)\nproject(Readme LANGUAGES CXX)\n${find_line}\n"
       "add_executable(app main.cpp)\ntarget_compile_features(app PRIVATE cxx_std_20)\n${link_line}\n")
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)
expect_output(${SOURCE}/examples/embed embed "Hinge\nOuter panel\n")
make_readme_project(${SCRATCH}/readme)
expect_output(${SCRATCH}/readme app "60\n")
