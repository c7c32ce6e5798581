# The installed tree, in addition to what orlo_product() installs for each target:
#   bin/ lib/ include/   DLLs and programs with their debug data, import libraries, headers
#   lib/cmake/orlo       find_package(orlo); orloConfig.cmake lists the targets
#   lib/pkgconfig        pkg-config orlo, orlo-drawcore32
#   share/               guides, licenses, examples, the adapter

include(CMakePackageConfigHelpers)

foreach(path ${ORLO_RUNTIME})
  get_filename_component(name ${path} NAME)
  list(APPEND runtime_names ${name})
endforeach()
string(REPLACE ";" " " runtime_words "${runtime_names}")

set(config ${PROJECT_BINARY_DIR}/config)
set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/orlo)
configure_package_config_file(cmake/orloConfig.cmake.in ${config}/orloConfig.cmake INSTALL_DESTINATION ${config_folder})
write_basic_package_version_file(${config}/orloConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${config}/orloConfig.cmake ${config}/orloConfigVersion.cmake DESTINATION ${config_folder})
install(EXPORT orloTargets NAMESPACE orlo:: DESTINATION ${config_folder})

foreach(module orlo orlo-drawcore32)
  configure_file(cmake/${module}.pc.in ${config}/${module}.pc @ONLY)
  install(FILES ${config}/${module}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

install(FILES ${ORLO_RUNTIME} TYPE BIN)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY packaging/licenses DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(examples ${CMAKE_INSTALL_DATADIR}/orlo/examples)
install(DIRECTORY packaging/example/ DESTINATION ${examples})
install(FILES demo/example_host.cpp docs/examples/check_list.cpp docs/examples/end_codes.cpp docs/examples/wizard.cpp
        docs/examples/field_page.cpp docs/examples/c_host.c docs/examples/c_page.c docs/examples/orlo.rs docs/examples/rust_page.rs
        DESTINATION ${examples})
install(DIRECTORY skeleton DESTINATION ${CMAKE_INSTALL_DATADIR}/orlo)
install(FILES tests/data/dxf/kabeja-draft4-roof-details.dxf DESTINATION ${examples} RENAME roof.dxf)

# Collects all products, which must be built before the installation.
get_property(products GLOBAL PROPERTY ORLO_PRODUCTS)
get_property(import_libraries GLOBAL PROPERTY ORLO_IMPORT_LIBRARIES)
add_custom_target(products DEPENDS ${products} ${import_libraries} drawcore_adapter help_page)

# Last, since it moves the debug data of files copied above.
foreach(product ${products})
  list(APPEND binaries bin/$<TARGET_FILE_NAME:${product}>)
endforeach()
list(APPEND binaries ${ORLO_ADAPTER_FOLDER}/$<TARGET_FILE_NAME:drawcore_adapter>)
install(CODE "set(objcopy \"${CMAKE_OBJCOPY}\")
set(binaries \"${binaries}\")
set(runtime \"${runtime_names}\")")
install(SCRIPT cmake/SplitDebugData.cmake)
