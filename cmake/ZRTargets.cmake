# zr_add_library(<target> EXPORT_NAME <name> SOURCES <files...> PUBLIC_LINK <targets...>)
#
# One shared library of the project: hidden visibility, a generated export
# header <target lower-case>_export.h, warnings of the project, and installed
# flat headers.
function(zr_add_library target)
    cmake_parse_arguments(ARG "" "EXPORT_NAME;SOVERSION" "SOURCES;HEADERS;PUBLIC_LINK" ${ARGN})
    add_library(${target} SHARED ${ARG_SOURCES} ${ARG_HEADERS})
    add_library(ZR::${ARG_EXPORT_NAME} ALIAS ${target})
    if(NOT ARG_SOVERSION)
        set(ARG_SOVERSION 0)
    endif()
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${ARG_SOVERSION}
        EXPORT_NAME ${ARG_EXPORT_NAME}
        # Installed libraries find each other wherever the tree is installed.
        INSTALL_RPATH "$ORIGIN")
    string(TOLOWER ${target} lower)
    generate_export_header(${target} BASE_NAME ${target} EXPORT_FILE_NAME ${lower}_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
        $<INSTALL_INTERFACE:${ZR_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LINK})
    zr_set_warnings(${target})
    install(TARGETS ${target} EXPORT ZRProductPropertiesTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${ARG_HEADERS} ${CMAKE_CURRENT_BINARY_DIR}/${lower}_export.h
        DESTINATION ${ZR_INSTALL_INCLUDEDIR})
endfunction()

function(zr_set_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual
        -Wsuggest-override -Werror=return-type)
    if(ZR_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE QT_USE_QSTRINGBUILDER QT_NO_FOREACH)
endfunction()
