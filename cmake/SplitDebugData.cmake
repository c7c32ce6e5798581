# During installation, moves the debug data of each of ${binaries} to NAME.debug beside it, where gdb finds it.

set(dates --preserve-dates) # in the header of the file too, so that the same build results in the same bytes

foreach(name ${binaries})
  set(binary $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${name})
  execute_process(COMMAND ${objcopy} ${dates} --only-keep-debug ${binary} ${binary}.debug COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${objcopy} ${dates} --strip-all --add-gnu-debuglink=${binary}.debug ${binary} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# The compiler's runtime also contains debug data.
foreach(name ${runtime})
  execute_process(COMMAND ${objcopy} ${dates} --strip-all $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin/${name} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
