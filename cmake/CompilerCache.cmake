# Compiles through ccache if it is installed. ccache supports precompiled headers with two settings only: it must be
# allowed to assume that their macros match, and the compiler must record the header in its preprocessed output.

find_program(ORLO_CCACHE ccache DOC "Compiler cache")
if(ORLO_CCACHE)
  set(sloppiness CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime)
  foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env ${sloppiness} ${ORLO_CCACHE})
  endforeach()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
  else()
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()
