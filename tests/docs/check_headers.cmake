# Checks that headers named by documents and headers exist, that host.h includes all C headers of its folder, and that
# they are valid C: cmake -D ROOT=FOLDER -D CC=COMPILER -P check_headers.cmake

file(GLOB texts ${ROOT}/*.md ${ROOT}/docs/*.md ${ROOT}/afx/*.md)
file(GLOB_RECURSE headers ${ROOT}/orlo/*.h)
foreach(text ${texts} ${headers})
  file(STRINGS ${text} lines REGEX "[a-z_]+/[a-z_]+\\.h")
  string(REGEX MATCHALL "[a-z_]+(/[a-z_]+)+\\.h" names "${lines}")
  foreach(name ${names})
    set(found FALSE)
    foreach(folder . orlo drawcore/include)
      if(EXISTS ${ROOT}/${folder}/${name})
        set(found TRUE)
      endif()
    endforeach()
    if(NOT found)
      message(SEND_ERROR "${text} refers to ${name}, which does not exist")
    endif()
  endforeach()
endforeach()

file(READ ${ROOT}/orlo/host/host.h host)
file(GLOB parts RELATIVE ${ROOT} ${ROOT}/orlo/host/*.h)
list(REMOVE_ITEM parts orlo/host/host.h orlo/host/api.h)
foreach(part ${parts})
  file(STRINGS ${ROOT}/${part} for_cpp REGEX "^namespace")
  string(FIND "${host}" "#include \"${part}\"" found)
  if(found EQUAL -1 AND NOT for_cpp)
    message(SEND_ERROR "orlo/host/host.h does not include ${part}")
  endif()
endforeach()

# Compiles each C header alone, and all of them in a UNICODE program and in a C++ program of an earlier standard.
function(compile header language standard)
  execute_process(COMMAND ${CC} -std=${standard} -Wall -Wextra -Wpedantic -Werror -fsyntax-only -DWIN32_LEAN_AND_MEAN
                          ${ARGN} -I ${ROOT} -I ${ROOT}/drawcore/include -I ${ROOT}/orlo/include
                          -include ${header} -x ${language} /dev/null
                  RESULT_VARIABLE code ERROR_VARIABLE messages)
  if(code)
    message(SEND_ERROR "${header} does not compile as ${standard}:\n${messages}")
  endif()
endfunction()

compile(orlo/host/host.h c c99 -DUNICODE)
file(GLOB drawcore RELATIVE ${ROOT} ${ROOT}/drawcore/include/drawcore/*.h)
list(REMOVE_ITEM drawcore drawcore/include/drawcore/dxf_document.h drawcore/include/drawcore/owned_drawing.h) # C++
foreach(part ${parts} ${drawcore} orlo/include/orlo_c.h)
  file(STRINGS ${ROOT}/${part} for_cpp REGEX "^namespace")
  if(NOT for_cpp)
    compile(${part} c c99)
    list(APPEND all -include ${part})
  endif()
endforeach()
compile(orlo/host/host.h c++ c++11 ${all})
