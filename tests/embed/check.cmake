file(REMOVE_RECURSE ${SCRATCH})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE} -B ${SCRATCH}/build -D CMAKE_PREFIX_PATH=${SCRATCH}/prefix -D
    "CMAKE_CXX_FLAGS=${FLAGS}")
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)

execute_process(COMMAND ${SCRATCH}/build/embed OUTPUT_VARIABLE bill RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT bill STREQUAL "Hinge\nOuter panel\n")
  message(FATAL_ERROR "embed ended with ${status} and printed:\n${bill}")
endif()
