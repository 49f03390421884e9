# embed_resources(<target> HEADER <header> FILE <symbol> <path> [FILE <symbol> <path>]...)
#
# Adds to <target> one generated source per file, which defines <symbol> as the
# EmbeddedFile (resources/EmbeddedFile.h) that holds the file's bytes. <header>
# declares the symbols, as `extern const EmbeddedFile kName;`, and is written by
# hand; it is named as sources include it. A relative <path> starts at the current
# source folder. A file that changes is embedded anew by the next build.
#
# Run as a script (cmake -P), this same file writes one of those sources.

if(CMAKE_SCRIPT_MODE_FILE)
  file(READ "${INPUT}" bytes HEX)
  file(SIZE "${INPUT}" length)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  # Lines that an editor can show: 16 bytes of five characters each.
  string(REPEAT "....." 16 line)
  string(REGEX REPLACE "(${line})" "\\1\n" bytes "${bytes}")
  get_filename_component(name "${INPUT}" NAME)
  file(WRITE "${OUTPUT}"
    "// Generated from ${name}; change that file instead.\n"
    "#include \"${HEADER}\"\n\n"
    "static constexpr unsigned char kBytes[] = {\n${bytes}0x00};\n\n"
    "constinit const EmbeddedFile ${SYMBOL} = {kBytes, ${length}U};\n")
  return()
endif()

function(embed_resources target)
  set(script "${CMAKE_CURRENT_FUNCTION_LIST_FILE}")
  list(POP_FRONT ARGN keyword header)
  if(NOT keyword STREQUAL "HEADER")
    message(FATAL_ERROR "embed_resources: HEADER is missing for ${target}.")
  endif()
  while(ARGN)
    list(LENGTH ARGN remaining)
    if(remaining LESS 3)
      message(FATAL_ERROR "embed_resources: FILE needs a symbol and a path, in ${target}.")
    endif()
    list(POP_FRONT ARGN keyword symbol path)
    if(NOT keyword STREQUAL "FILE")
      message(FATAL_ERROR "embed_resources: FILE expected instead of ${keyword}, in ${target}.")
    endif()
    get_filename_component(path "${path}" ABSOLUTE)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol}.cpp")
    add_custom_command(OUTPUT "${source}"
      COMMAND "${CMAKE_COMMAND}" "-DINPUT=${path}" "-DOUTPUT=${source}" "-DHEADER=${header}"
        "-DSYMBOL=${symbol}" -P "${script}"
      DEPENDS "${path}" "${script}"
      COMMENT "Embedding ${symbol}"
      VERBATIM)
    target_sources(${target} PRIVATE "${source}")
  endwhile()
endfunction()
