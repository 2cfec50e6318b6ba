# What every target of this project shares: language level, warnings, sanitizers, and the
# macro with which a module marks its exports.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(o7_common INTERFACE)
if(MSVC)
  target_compile_options(o7_common INTERFACE /W4 /permissive- /utf-8)
else()
  target_compile_options(o7_common INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endif()
if(WIN32)
  target_compile_definitions(o7_common INTERFACE
    UNICODE _UNICODE STRICT NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0A00 _WIN32_WINNT=0x0A00)
  if(NOT MSVC)
    # The language runtime goes into each module: a guest brings no DLL that a host might replace.
    add_link_options(-static -Wl,--no-insert-timestamp)
  endif()
endif()
if(O7_SANITIZE AND NOT WIN32)
  target_compile_options(o7_common INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(o7_common INTERFACE -fsanitize=address,undefined)
endif()
if(O7_FUZZ)
  target_compile_options(o7_common INTERFACE -fsanitize=fuzzer-no-link)
endif()

# o7_add_module(TARGET OUTPUT NAME API MACRO SOURCES ...)
# A module of the driver: a DLL on Windows, a static library on the host. API is the stem of its
# export macro: <API>_BUILDING is defined while the module itself is compiled.
function(o7_add_module target)
  cmake_parse_arguments(ARG "" "OUTPUT;API" "SOURCES" ${ARGN})
  if(WIN32)
    add_library(${target} SHARED ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${ARG_OUTPUT} PREFIX "")
  else()
    add_library(${target} STATIC ${ARG_SOURCES})
  endif()
  target_compile_definitions(${target} PRIVATE ${ARG_API}_BUILDING)
  target_link_libraries(${target} PRIVATE o7_common)
endfunction()
