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

# What makes an attack on a fault of the program harder, as Debian builds its packages; bench/README.md
# tells what it costs. Sanitizers have checks of their own.
if(NOT TERMVIK_SANITIZE)
  target_compile_options(termvik_options INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong>)
  if(WIN32)
    target_link_options(termvik_options INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong>)
  else()
    target_compile_definitions(termvik_options INTERFACE $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>
                                                         $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
    target_link_options(termvik_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
    include(CheckCXXCompilerFlag)
    check_cxx_compiler_flag(-fcf-protection TERMVIK_CAN_GUARD_JUMPS)
    if(TERMVIK_CAN_GUARD_JUMPS)
      target_compile_options(termvik_options INTERFACE $<$<CONFIG:Release>:-fcf-protection>)
    endif()
  endif()
endif()

if(TERMVIK_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined
                 -fno-omit-frame-pointer)
  target_compile_options(termvik_options INTERFACE ${sanitizers})
  target_compile_definitions(termvik_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(termvik_options INTERFACE ${sanitizers})
endif()

if(TERMVIK_FUZZ)
  # The program's own code tells the fuzzer which ways an input has taken through it.
  target_compile_options(termvik_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(termvik_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
