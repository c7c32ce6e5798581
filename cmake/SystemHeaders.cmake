# Header libraries of this machine for the cross compiler: target system_headers (CLI/, nlohmann/, stb/).
# The folder that holds them has this machine's C library in it too and must stay out of sight.

set(ORLO_SYSTEM_HEADERS ${CMAKE_BINARY_DIR}/system_headers)
file(MAKE_DIRECTORY ${ORLO_SYSTEM_HEADERS})
foreach(header CLI/CLI.hpp nlohmann/json.hpp stb/stb_image.h)
  get_filename_component(library ${header} DIRECTORY)
  find_path(ORLO_${library}_FOLDER ${header} NO_CMAKE_FIND_ROOT_PATH)
  if(NOT ORLO_${library}_FOLDER)
    message(FATAL_ERROR "${header} is missing: ./run setup installs it")
  endif()
  file(CREATE_LINK ${ORLO_${library}_FOLDER}/${library} ${ORLO_SYSTEM_HEADERS}/${library} SYMBOLIC)
endforeach()

add_library(system_headers INTERFACE)
target_include_directories(system_headers SYSTEM INTERFACE ${ORLO_SYSTEM_HEADERS})
