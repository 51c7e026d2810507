# The libraries of termvik-glossary, which reads arguments with CLI11 and XML with expat: Debian's own
# where the build is for this very system; for Windows expat is made from Debian's source of it, which
# scripts/setup.sh brings. TERMVIK_GLOSSARY_TOOL tells whether they are there.
set(TERMVIK_GLOSSARY_TOOL OFF)

if(NOT CMAKE_CROSSCOMPILING)
  find_package(CLI11 2.1 QUIET)
  if(TERMVIK_PORTABLE) # it contains the library
    find_library(EXPAT_LIBRARY NAMES libexpat.a)
  endif()
  find_package(EXPAT QUIET)
  if(CLI11_FOUND AND EXPAT_FOUND)
    set(TERMVIK_GLOSSARY_TOOL ON)
  endif()
else()
  find_path(cli11_folder CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
  set(expat_source ${PROJECT_SOURCE_DIR}/build/sources/expat/expat/lib)
  if(cli11_folder AND EXISTS ${expat_source}/xmlparse.c)
    set(TERMVIK_GLOSSARY_TOOL ON)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include-cli11)
    file(CREATE_LINK ${cli11_folder}/CLI ${PROJECT_BINARY_DIR}/include-cli11/CLI SYMBOLIC)
    add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
    target_include_directories(CLI11::CLI11 INTERFACE ${PROJECT_BINARY_DIR}/include-cli11)

    # Its own build leaves a definition empty that Debian's version of the code compares.
    enable_language(C)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/expat/expat_config.h
         CONTENT "#define BYTEORDER 1234\n#define XML_CONTEXT_BYTES 1024\n#define XML_DTD 1\n#define XML_NS 1\n")
    add_library(expat STATIC EXCLUDE_FROM_ALL ${expat_source}/xmlparse.c ${expat_source}/xmlrole.c
                                              ${expat_source}/xmltok.c)
    target_include_directories(expat PRIVATE ${PROJECT_BINARY_DIR}/expat
                                     SYSTEM INTERFACE ${expat_source})
    target_compile_definitions(expat PUBLIC XML_STATIC)
    target_compile_options(expat PRIVATE -ffunction-sections -fdata-sections)
    add_library(EXPAT::EXPAT ALIAS expat)
  endif()
endif()

if(NOT TERMVIK_GLOSSARY_TOOL)
  message(STATUS "CLI11 or expat not found: no termvik-glossary")
endif()
