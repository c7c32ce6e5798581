# Header libraries of this machine for the cross compiler, each as a target for those that include it.
#   orlo_system_headers(system_headers CLI/CLI.hpp nlohmann/json.hpp stb/stb_image.h)
# The folder that holds them has this machine's C library in it too and must stay out of sight.

set(ORLO_SYSTEM_HEADERS ${CMAKE_CURRENT_BINARY_DIR})

function(orlo_system_headers target)
  set(folder ${ORLO_SYSTEM_HEADERS}/${target})
  file(MAKE_DIRECTORY ${folder})
  foreach(header ${ARGN})
    string(REGEX REPLACE "/.*" "" library ${header})
    find_path(ORLO_${library}_FOLDER ${header} NO_CMAKE_FIND_ROOT_PATH)
    if(NOT ORLO_${library}_FOLDER)
      message(FATAL_ERROR "${header} is missing: ./run setup installs it")
    endif()
    file(CREATE_LINK ${ORLO_${library}_FOLDER}/${library} ${folder}/${library} SYMBOLIC)
  endforeach()
  add_library(${target} INTERFACE)
  target_include_directories(${target} SYSTEM INTERFACE ${folder})
endfunction()
