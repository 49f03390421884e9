# `appkit` is AppKit with Foundation as this platform has it: the frameworks on
# macOS, GNUstep elsewhere. PLATFORM_FOLDER names the half of each file pair
# that belongs to it; GNUSTEP is set besides APPLE, which CMake sets itself.
add_library(appkit INTERFACE)

if(APPLE)
  set(PLATFORM_FOLDER Apple)
  target_link_libraries(appkit INTERFACE "-framework AppKit" "-framework Carbon" "-framework Security")
else()
  set(PLATFORM_FOLDER GNUstep)
  set(GNUSTEP TRUE)
  if(NOT CMAKE_OBJCXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "GNUstep's AppKit needs clang here: configure with a preset, or with CC=clang CXX=clang++ OBJCXX=clang++.")
  endif()
  find_program(GNUSTEP_CONFIG gnustep-config)
  if(NOT GNUSTEP_CONFIG)
    message(FATAL_ERROR "gnustep-config is missing: run script/bootstrap first.")
  endif()

  # clang does not look into GCC's folders for the Objective-C runtime's
  # headers, and gnustep-config does not name them.
  file(GLOB OBJC_RUNTIME_HEADER /usr/lib/gcc/*/*/include/objc/objc.h)
  if(NOT OBJC_RUNTIME_HEADER)
    message(FATAL_ERROR "The Objective-C runtime's headers are missing: run script/bootstrap first.")
  endif()
  list(SORT OBJC_RUNTIME_HEADER COMPARE NATURAL)
  list(GET OBJC_RUNTIME_HEADER -1 OBJC_RUNTIME_HEADER)
  get_filename_component(OBJC_RUNTIME_FOLDER "${OBJC_RUNTIME_HEADER}" DIRECTORY)
  get_filename_component(OBJC_RUNTIME_FOLDER "${OBJC_RUNTIME_FOLDER}" DIRECTORY)
  # Only objc/ of that folder is wanted: the rest would shadow clang's own headers.
  file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/objc-runtime")
  file(CREATE_LINK "${OBJC_RUNTIME_FOLDER}/objc" "${CMAKE_BINARY_DIR}/objc-runtime/objc" SYMBOLIC)

  execute_process(COMMAND "${GNUSTEP_CONFIG}" --variable=GNUSTEP_SYSTEM_HEADERS
    OUTPUT_VARIABLE GNUSTEP_HEADERS OUTPUT_STRIP_TRAILING_WHITESPACE)
  target_include_directories(appkit SYSTEM INTERFACE
    "${CMAKE_BINARY_DIR}/objc-runtime" "${GNUSTEP_HEADERS}")
  target_compile_definitions(appkit INTERFACE
    GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_GUI_LIBRARY=1 GNU_RUNTIME=1 _NATIVE_OBJC_EXCEPTIONS)
  target_compile_options(appkit INTERFACE
    -pthread -fno-strict-aliasing
    $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc -fexceptions -fobjc-exceptions
      -fconstant-string-class=NSConstantString -Wno-import>)
  target_link_libraries(appkit INTERFACE gnustep-gui gnustep-base objc X11 pthread)
endif()
