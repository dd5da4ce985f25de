# Instrumentation of the whole build, for the sanitizer and fuzzing jobs (scripts/sanitize.sh, scripts/fuzz.sh).
#
# ZR_SANITIZE: a -fsanitize list such as "address,undefined" or "thread"; empty builds without sanitizers.
# ZR_BUILD_FUZZERS: also builds the libFuzzer targets of fuzz/; needs clang, and instruments every
# library and test for address, undefined behaviour and coverage guidance.
set(ZR_SANITIZE "" CACHE STRING "Sanitizers for every target, as for -fsanitize= (address,undefined or thread)")
option(ZR_BUILD_FUZZERS "Build the libFuzzer targets in fuzz/ (clang only)" OFF)

if(ZR_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "ZR_BUILD_FUZZERS needs clang (for example -DCMAKE_CXX_COMPILER=clang++-14)")
    endif()
    if(ZR_SANITIZE STREQUAL "")
        set(ZR_SANITIZE "address,undefined" CACHE STRING "" FORCE)
    elseif(ZR_SANITIZE MATCHES "thread")
        message(FATAL_ERROR "ZR_BUILD_FUZZERS runs under address and undefined behaviour sanitizers, not ${ZR_SANITIZE}")
    endif()
    # Coverage guidance in every library; only the fuzz targets link the fuzzer's main.
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

if(NOT ZR_SANITIZE STREQUAL "")
    add_compile_options(-fsanitize=${ZR_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZR_SANITIZE})
    if(ZR_SANITIZE MATCHES "undefined")
        # A report of undefined behaviour stops the program, so a test or fuzz run cannot pass over it.
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        add_compile_options(-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/ZRSanitizers.ignorelist)
    endif()
endif()
