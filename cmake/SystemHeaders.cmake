# Makes native header-only libraries available to the cross compiler, as a target.
#   orlo_system_headers(system_headers CLI/CLI.hpp nlohmann/json.hpp stb/stb_image.h)
# Their folder must not be an include directory, because it also contains the native C library.

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
