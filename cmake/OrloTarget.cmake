# Settings shared by all targets of the project: warnings, and the runtime DLLs beside programs.

include(GNUInstallDirs)
# The adapter has the name of the reference database; a host that uses it ships it instead.
set(ORLO_ADAPTER_FOLDER ${CMAKE_INSTALL_DATADIR}/orlo/adapter)

string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")

function(orlo_compile_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Werror
                         $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
  if(WIN32)
    target_compile_definitions(${target} PRIVATE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
    # Line tables only, which suffice for backtraces; variables would take up to half of the compile time. Wine's
    # debugger requires DWARF 4.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:SHELL:-gdwarf-4 -g1>)
    # Debug data does not name the folder of the build.
    target_compile_options(${target} PRIVATE -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
                           -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
  endif()
endfunction()

# Adds a target of this project, compiled with the precompiled headers of the product unless others are named.
function(orlo_target target)
  cmake_parse_arguments(arg "" "PRECOMPILED" "" ${ARGN})
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED precompiled)
  endif()
  orlo_compile_options(${target})
  target_precompile_headers(${target} REUSE_FROM ${arg_PRECOMPILED})
endfunction()

# Adds version information to a DLL or program, and a manifest to a program.
#   orlo_version_information(demo "Drawing viewer" [MANIFEST demo.manifest])
function(orlo_version_information target description)
  cmake_parse_arguments(arg "" "MANIFEST" "" ${ARGN})
  get_target_property(type ${target} TYPE)
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  if(type STREQUAL "EXECUTABLE")
    set(file_type VFT_APP)
    set(file_name ${name}.exe)
    if(NOT arg_MANIFEST)
      set(arg_MANIFEST ${PROJECT_SOURCE_DIR}/cmake/console.manifest)
    endif()
    cmake_path(ABSOLUTE_PATH arg_MANIFEST)
    set(manifest "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"${arg_MANIFEST}\"")
  else()
    set(file_type VFT_DLL)
    set(file_name ${name}.dll)
  endif()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${script} @ONLY)
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${arg_MANIFEST}")
  target_sources(${target} PRIVATE ${script})
endfunction()

# Declares a DLL or program as a product: adds version information and installs it. C_ONLY: a DLL with C functions,
# whose installed target is defined by orloConfig.cmake for every compiler.
#   orlo_product(afx "Framework layer of Orlo" [HEADERS_IN include/afx] [C_ONLY])
function(orlo_product target description)
  cmake_parse_arguments(arg "C_ONLY" "HEADERS_IN" "" ${ARGN})
  orlo_version_information(${target} ${description})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    install(TARGETS ${target})
  else()
    if(NOT arg_HEADERS_IN)
      set(arg_HEADERS_IN ${CMAKE_INSTALL_INCLUDEDIR})
    endif()
    orlo_install_library(${target} ${arg_HEADERS_IN} ${ARGN})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  endif()
  set_property(GLOBAL APPEND PROPERTY ORLO_PRODUCTS ${target})
endfunction()

# Installs a library with its public headers; without C_ONLY, to be found as orlo::NAME.
function(orlo_install_library target headers_in)
  get_target_property(sets ${target} INTERFACE_HEADER_SETS)
  set(headers)
  foreach(set ${sets})
    list(APPEND headers FILE_SET ${set} DESTINATION ${headers_in})
  endforeach()
  set(export EXPORT orloTargets)
  if("C_ONLY" IN_LIST ARGN)
    set(export)
  endif()
  install(TARGETS ${target} ${export} ${headers})
endfunction()

# Tests are compiled more often than they run, so they are not optimized.
set(ORLO_TEST_OPTIONS $<$<CONFIG:Release>:-O0>)

# Runs the tests of a program again in other environments: common controls 6 (a program with a manifest), a screen of
# 144 dots per inch, a black color scheme. ONLY_AT_96 and ONLY_ON_WHITE are GoogleTest patterns of tests that depend on
# pixels.
#   orlo_test_elsewhere(controls LIBRARIES ... [ONLY_AT_96 ...] [ONLY_ON_WHITE ...])
function(orlo_test_elsewhere name)
  cmake_parse_arguments(arg "" "" "LIBRARIES;ONLY_AT_96;ONLY_ON_WHITE" ${ARGN})
  list(JOIN arg_ONLY_AT_96 ":" only_at_96)
  list(JOIN arg_ONLY_ON_WHITE ":" only_on_white)
  set(themed test_${name}_themed)
  add_executable(${themed} $<TARGET_OBJECTS:test_${name}> ${PROJECT_SOURCE_DIR}/tests/support/themed.rc)
  set_target_properties(${themed} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${themed} PRIVATE ${arg_LIBRARIES} gtest)
  add_test(NAME ${name}_144 COMMAND test_${name} --dpi=144 --gtest_filter=-${only_at_96})
  add_test(NAME ${name}_themed COMMAND ${themed})
  add_test(NAME ${name}_themed_144 COMMAND ${themed} --dpi=144 --gtest_filter=-${only_at_96})
  add_test(NAME ${name}_black COMMAND ${themed} --scheme=black --gtest_filter=-${only_on_white})
  set_tests_properties(${name}_144 ${name}_themed ${name}_themed_144 ${name}_black PROPERTIES TIMEOUT 300 RESOURCE_GROUPS desktops:1)
endfunction()

# Adds a GoogleTest program to ctest, with one process and one time limit.
#   orlo_test(NAME binding SOURCES ... LIBRARIES ...)
function(orlo_test)
  cmake_parse_arguments(arg "" "NAME;TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(test_${arg_NAME} ${arg_SOURCES})
  orlo_target(test_${arg_NAME} PRECOMPILED precompiled_for_tests)
  target_link_libraries(test_${arg_NAME} PRIVATE ${arg_LIBRARIES} gtest)
  target_compile_options(test_${arg_NAME} PRIVATE ${ORLO_TEST_OPTIONS})
  add_test(NAME ${arg_NAME} COMMAND test_${arg_NAME})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT ${arg_TIMEOUT})
  if(WIN32) # windows of two programs on one desktop take the focus from each other
    set_tests_properties(${arg_NAME} PROPERTIES RESOURCE_GROUPS desktops:1)
  endif()
endfunction()

# Copies the compiler's runtime DLLs beside the programs, so that the folder can be copied to a Windows machine.
# ORLO_RUNTIME contains their paths.
function(orlo_copy_runtime)
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    set(unwind libgcc_s_seh-1.dll)
  else()
    set(unwind libgcc_s_dw2-1.dll)
  endif()
  foreach(name ${unwind} libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND paths ${path})
  endforeach()
  file(COPY ${paths} DESTINATION ${ORLO_BIN})
  set(ORLO_RUNTIME ${paths} CACHE INTERNAL "The runtime DLLs, for other folders of programs")
endfunction()
