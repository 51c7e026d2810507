# How every target of the project is compiled.
add_library(termvik_options INTERFACE)
target_compile_options(
  termvik_options
  INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
            $<$<BOOL:${TERMVIK_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies inside std::basic_string where there are none (its bug 105651).
  target_compile_options(termvik_options INTERFACE -Wno-restrict)
endif()
target_compile_definitions(
  termvik_options
  INTERFACE TERMVIK_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
            TERMVIK_VERSION_MINOR=${PROJECT_VERSION_MINOR}
            TERMVIK_VERSION_REVISION=${PROJECT_VERSION_PATCH})

if(WIN32)
  # The Windows API in its wide form, as of Windows 10, without the macros that get in our way.
  target_compile_definitions(
    termvik_options INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
  # One file without a library of the compiler beside it, and nothing in it that nobody calls.
  target_compile_options(termvik_options INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(termvik_options INTERFACE -static -Wl,--gc-sections
                      $<$<CONFIG:Release>:-s>)
endif()

if(TERMVIK_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined
                 -fno-omit-frame-pointer)
  target_compile_options(termvik_options INTERFACE ${sanitizers})
  target_link_options(termvik_options INTERFACE ${sanitizers})
endif()
