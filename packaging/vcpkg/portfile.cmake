# Orlo for vcpkg, as an overlay port: vcpkg install orlo --overlay-ports=packaging --triplet x64-mingw-dynamic
# Builds the sources that contain this folder, and the libraries only; the zip of ./run package contains the programs.

get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
vcpkg_cmake_configure(SOURCE_PATH "${SOURCE_PATH}" OPTIONS -DORLO_TESTS=OFF -DORLO_PROGRAMS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/orlo)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
