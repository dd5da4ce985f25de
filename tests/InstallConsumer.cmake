# Installs the built project into a fresh prefix, then builds and runs a small consumer project against the
# installed package only: once through the CMake package, once with the flags of pkg-config.
# Arguments: -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DCXX_COMPILER=...
#            -DINSTALL_LIBDIR=... -DINSTALL_TRANSLATIONSDIR=... (relative to the prefix)
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}"
    RESULT_VARIABLE result OUTPUT_QUIET)
if(result)
    message(FATAL_ERROR "install failed: ${result}")
endif()
foreach(file IN ITEMS "${INSTALL_TRANSLATIONSDIR}/ZRProductProperties_en.qm"
                      "${INSTALL_LIBDIR}/pkgconfig/ZRProductProperties.pc")
    if(NOT EXISTS "${prefix}/${file}")
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

# The CMake package
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

# pkg-config, with the fresh prefix only
find_program(PKG_CONFIG NAMES pkg-config pkgconf REQUIRED)
set(ENV{PKG_CONFIG_PATH} "${prefix}/${INSTALL_LIBDIR}/pkgconfig")
function(pkg_config output)
    execute_process(COMMAND "${PKG_CONFIG}" ${ARGN} ZRProductProperties RESULT_VARIABLE result
        OUTPUT_VARIABLE out ERROR_VARIABLE err OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(result)
        message(FATAL_ERROR "pkg-config ${ARGN} failed:\n${err}")
    endif()
    set(${output} "${out}" PARENT_SCOPE)
endfunction()
pkg_config(flags --cflags --libs)
pkg_config(libdir --variable=libdir)
pkg_config(translations --variable=translationsdir)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND "${CXX_COMPILER}" -std=c++17 -fPIC "${SOURCE_DIR}/tests/consumer/main.cpp"
    "-DZR_TRANSLATIONS_DIR=\"${translations}\"" ${flags} "-Wl,-rpath,${libdir}" -o "${WORK_DIR}/consumer-pkgconfig"
    RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(result)
    message(FATAL_ERROR "building the consumer with pkg-config failed:\n${flags}\n${out}\n${err}")
endif()
execute_process(COMMAND "${WORK_DIR}/consumer-pkgconfig" RESULT_VARIABLE result OUTPUT_VARIABLE out
    ERROR_VARIABLE err)
message(STATUS "consumer built with pkg-config printed: ${out}${err}")
if(result)
    message(FATAL_ERROR "the consumer built with pkg-config failed: ${result}")
endif()
