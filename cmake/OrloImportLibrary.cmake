# Import libraries that are created from a list of functions instead of a DLL.

set(ORLO_IMPORT ${PROJECT_BINARY_DIR}/import)
# Writes the form that the linkers of all compilers read. Without it, the package is for the building compiler only.
find_program(ORLO_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 DOC "Creates import libraries for other compilers")
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
  set(machine i386:x86-64)
else()
  set(machine i386)
endif()
set(ORLO_DLLTOOL_a ${CMAKE_DLLTOOL} --deterministic-libraries --temp-prefix=orlo_) # else the process number
set(ORLO_DLLTOOL_lib ${ORLO_LLVM_DLLTOOL} -m ${machine})

# Stores the names of the functions that a C header declares with MACRO in VARIABLE, after those that it contains.
function(orlo_list_functions variable macro)
  foreach(header ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    file(READ ${header} text)
    string(REGEX MATCHALL "\n${macro} [^;(]*[ *][A-Za-z0-9]+\\(" declarations "${text}")
    list(TRANSFORM declarations REPLACE ".*[ *]([A-Za-z0-9]+)\\($" "\\1")
    list(APPEND ${variable} ${declarations})
  endforeach()
  set(${variable} ${${variable}} PARENT_SCOPE)
endfunction()

# Adds a target that creates the import library NAME (.a for this compiler, .lib for others) of a DLL, and installs it
# with the list of its functions.
#   orlo_import_library(orlo_import orlo.lib orlo.dll DESTINATION FUNCTIONS...)
function(orlo_import_library target name dll destination)
  set(library ${ORLO_IMPORT}/${target}/${name})
  cmake_path(REPLACE_EXTENSION library LAST_ONLY def OUTPUT_VARIABLE list)
  list(JOIN ARGN "\n" functions)
  file(CONFIGURE OUTPUT ${list} CONTENT "LIBRARY ${dll}\nEXPORTS\n${functions}\n" @ONLY)
  install(FILES ${list} DESTINATION ${destination})
  cmake_path(GET name EXTENSION LAST_ONLY form)
  string(SUBSTRING ${form} 1 -1 form)
  if(form STREQUAL "lib" AND NOT ORLO_LLVM_DLLTOOL)
    return()
  endif()
  add_custom_command(OUTPUT ${library} DEPENDS ${list} VERBATIM WORKING_DIRECTORY ${ORLO_IMPORT}/${target}
                     COMMAND ${ORLO_DLLTOOL_${form}} -d ${list} -l ${library})
  add_custom_target(${target} ALL DEPENDS ${library})
  set_target_properties(${target} PROPERTIES ORLO_LIBRARY ${library})
  set_property(GLOBAL APPEND PROPERTY ORLO_IMPORT_LIBRARIES ${target})
  install(FILES ${library} DESTINATION ${destination})
endfunction()
