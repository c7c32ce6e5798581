# Precompiles the headers that nearly every source includes, once for each set of flags. This only saves compile time:
# each source still includes the headers that it uses, and the test `headers` compiles the public ones without
# precompiled headers.
#   orlo_precompiled_headers(NAME [HEADERS ...] [OPTIONS ...] [LIBRARIES ...])
# defines a target without code for orlo_target(... PRECOMPILED NAME).

function(orlo_precompiled_headers name)
  cmake_parse_arguments(arg "" "" "HEADERS;OPTIONS;LIBRARIES" ${ARGN})
  set(headers algorithm array charconv cmath cstdint cstring filesystem functional map memory optional set string
      string_view unordered_map utility variant vector)
  list(TRANSFORM headers REPLACE "(.+)" "<\\1>")
  if(WIN32)
    list(PREPEND headers <windows.h> <objidl.h>)
  endif()
  list(APPEND headers ${arg_HEADERS})
  list(TRANSFORM headers REPLACE "(.+)" "$<$<COMPILE_LANGUAGE:CXX>:\\1>")
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Owns the precompiled header.\n")
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${source})
  orlo_compile_options(${name})
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
  target_precompile_headers(${name} PRIVATE "${headers}")
endfunction()
