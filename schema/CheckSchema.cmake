# cmake -DXMLLINT=<xmllint> -DSCHEMA=<xsd> -DEXAMPLES=<examples dir> -P CheckSchema.cmake
#     validates every sample product and legacy product against the schema;
# cmake -DTOOL=<zrproducts> -DSCHEMA=<xsd> -DPRINTED=<file> -P CheckSchema.cmake
#     checks that "zrproducts schema" prints the schema, byte for byte.
if(TOOL)
    execute_process(COMMAND "${TOOL}" schema OUTPUT_FILE "${PRINTED}" RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "zrproducts schema exited with ${status}")
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${SCHEMA}" "${PRINTED}" RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "zrproducts schema prints ${PRINTED}, which differs from ${SCHEMA}")
    endif()
    return()
endif()

if(NOT XMLLINT)
    message(FATAL_ERROR "xmllint not found: install it (Debian: apt-get install libxml2-utils) and configure again")
endif()
file(GLOB samples "${EXAMPLES}/products/*.xml" "${EXAMPLES}/resources/products/legacy/*.xml")
list(LENGTH samples count)
if(count EQUAL 0)
    message(FATAL_ERROR "no sample files in ${EXAMPLES}")
endif()
execute_process(COMMAND "${XMLLINT}" --noout --schema "${SCHEMA}" ${samples} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${count} sample files: not all validate against ${SCHEMA} (xmllint exited with ${status})")
endif()
message(STATUS "${count} sample files validate against ${SCHEMA}")
