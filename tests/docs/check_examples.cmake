# Checks that each example appears verbatim in its document: cmake -D ROOT=FOLDER -P check_examples.cmake

function(check example document)
  file(READ ${ROOT}/${example} code)
  file(READ ${ROOT}/${document} text)
  # From the first include on, without the introductory comment.
  string(FIND "${code}" "#include" begin)
  string(SUBSTRING "${code}" ${begin} -1 code)
  string(FIND "${text}" "${code}" found)
  if(found EQUAL -1)
    message(SEND_ERROR "${document} does not hold ${example} as it is")
  endif()
endfunction()

check(demo/example_host.cpp README.md)
check(docs/examples/end_codes.cpp docs/host-guide.md)
check(docs/examples/wizard.cpp docs/host-guide.md)
check(docs/examples/check_list.cpp docs/host-guide.md)
check(docs/examples/unit_calls.cpp docs/host-guide.md)
check(docs/examples/field_page.cpp docs/host-guide.md)
check(docs/examples/c_host.c docs/c-guide.md)
check(docs/examples/c_page.c docs/c-guide.md)
