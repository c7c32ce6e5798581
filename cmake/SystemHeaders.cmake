# Header libraries of this machine for the cross compiler: target system_headers (CLI/, nlohmann/, stb/).
# The folder that holds them, /usr/include, has this machine's C library in it too and must stay out of sight.

set(ORLO_SYSTEM_HEADERS ${CMAKE_BINARY_DIR}/system_headers)
file(MAKE_DIRECTORY ${ORLO_SYSTEM_HEADERS})
foreach(library CLI nlohmann stb)
  if(NOT EXISTS /usr/include/${library})
    message(FATAL_ERROR "/usr/include/${library} is missing: ./run setup installs it")
  endif()
  file(CREATE_LINK /usr/include/${library} ${ORLO_SYSTEM_HEADERS}/${library} SYMBOLIC)
endforeach()

add_library(system_headers INTERFACE)
target_include_directories(system_headers SYSTEM INTERFACE ${ORLO_SYSTEM_HEADERS})
