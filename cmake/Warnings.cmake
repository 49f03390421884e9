# Every target of this project links `warnings`, so that one list holds for all.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
