# One step of trying the installed package, see CMakeLists.txt.

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
  endif()
endfunction()

# Compares what a program prints when it runs among the installed examples.
function(expect_output program expected)
  execute_process(COMMAND ${program} WORKING_DIRECTORY ${SHARE}/examples OUTPUT_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0 OR NOT output STREQUAL expected)
    message(FATAL_ERROR "${program} ended with ${status} and printed:\n${output}")
  endif()
endfunction()

# Builds a project against the prefix.
function(build project folder)
  file(REMOVE_RECURSE ${folder})
  run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${project} -B ${folder} -D CMAKE_PREFIX_PATH=${PREFIX} -D
      CMAKE_CXX_COMPILER=${COMPILER} -D "CMAKE_CXX_FLAGS=${FLAGS}")
  run(${CMAKE_COMMAND} --build ${folder})
endfunction()

# Makes a project of what the README says about embedding: its C++ block becomes the content of main.
function(make_readme_project folder)
  file(READ ${SHARE}/README.md readme)
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
       "add_executable(app main.cpp)\n${link_line}\n")
endfunction()

set(bill "Hinge\nOuter panel\n")
if(STEP STREQUAL install)
  file(REMOVE_RECURSE ${SCRATCH})
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX})
elseif(STEP STREQUAL examples)
  build(${SHARE}/examples/embed ${SCRATCH}/examples)
  expect_output(${SCRATCH}/examples/bill "${bill}")
  expect_output(${SCRATCH}/examples/names
                "as an item: DR-4711\nas an assembly, and in the bill: Front door, left\n")
  expect_output(${SCRATCH}/examples/window "[window Bill]\nBom\n  Outer panel\nBom\n  Hinge\n  Outer panel\n")
elseif(STEP STREQUAL readme)
  make_readme_project(${SCRATCH}/readme)
  build(${SCRATCH}/readme ${SCRATCH}/readme-build)
  expect_output(${SCRATCH}/readme-build/app "60\n")
elseif(STEP STREQUAL pkgconfig)
  set(ENV{PKG_CONFIG_PATH} ${PKGCONFIG})
  execute_process(COMMAND pkg-config --cflags --libs VXMBomInfrastructure COMMAND_ERROR_IS_FATAL ANY
                  OUTPUT_STRIP_TRAILING_WHITESPACE OUTPUT_VARIABLE options)
  separate_arguments(options UNIX_COMMAND "${FLAGS} ${options}")
  run(${COMPILER} ${SHARE}/examples/embed/bill.cpp -o ${SCRATCH}/bill ${options})
  expect_output(${SCRATCH}/bill "${bill}")
else()
  message(FATAL_ERROR "no such step: ${STEP}")
endif()
