# OSTREL_SANITIZE names the sanitizers that everything is built with, as the
# compiler takes them ("address,undefined", "thread"); empty means none. They
# are chosen by a preset each, because their programs cannot be mixed.
set(OSTREL_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them")

if(OSTREL_SANITIZE)
  # Line numbers are all that a report needs; a little optimising makes up for
  # what the checks cost. A finding always ends the program.
  add_compile_options(-fsanitize=${OSTREL_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer -O1 -gline-tables-only)
  add_link_options(-fsanitize=${OSTREL_SANITIZE})
  if(OSTREL_SANITIZE MATCHES "address")
    # The standard library's own checks of indices and iterators.
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
  endif()
endif()
