# Fails when the shared library exports anything but the public classes' members, virtual tables and type information.
#   cmake -D NM=nm -D LIBRARY=libvantor-shared-smbios-v2.so -P check_exports.cmake
execute_process(COMMAND "${NM}" -D -C --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE exports COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\n$" "" exports "${exports}")
string(REPLACE "\n" ";" exports "${exports}")

set(classes "EBOOL|MEMORY_TYPE_DETAILS|MemoryInfo|PROCESSOR_CHARACTERISTICS|ProcessorInfo")
list(FILTER exports EXCLUDE REGEX "^[0-9a-f]+ [TVW] SMBIOS::Parsers::(${classes})::")
list(FILTER exports EXCLUDE REGEX "^[0-9a-f]+ [VW] (vtable|typeinfo|typeinfo name) for SMBIOS::Parsers::(${classes})$")
if(exports)
    list(JOIN exports "\n" listing)
    message(FATAL_ERROR "exported beside the public classes:\n${listing}")
endif()
