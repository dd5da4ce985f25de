# Installs the built project into a fresh prefix, then configures, builds and runs a small consumer
# project against the installed package only.
# Arguments: -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=...
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}"
    RESULT_VARIABLE result OUTPUT_QUIET)
if(result)
    message(FATAL_ERROR "install failed: ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE_DIR}/tests/consumer" -B "${WORK_DIR}/build"
    "-DCMAKE_PREFIX_PATH=${prefix}" RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(result)
    message(FATAL_ERROR "configuring the consumer failed:\n${out}\n${err}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/build" RESULT_VARIABLE result
    OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(result)
    message(FATAL_ERROR "building the consumer failed:\n${out}\n${err}")
endif()
execute_process(COMMAND "${WORK_DIR}/build/consumer" RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
message(STATUS "consumer printed: ${out}${err}")
if(result)
    message(FATAL_ERROR "the consumer failed: ${result}")
endif()
