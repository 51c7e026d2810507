# ICU, which compares the words off Windows: the system's. A portable program contains it, since each
# release of a system has another one that no other release has.
if(NOT TERMVIK_PORTABLE)
  find_package(ICU REQUIRED COMPONENTS uc i18n)
  return()
endif()

set(usual_suffixes ${CMAKE_FIND_LIBRARY_SUFFIXES})
set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
find_package(ICU REQUIRED COMPONENTS data i18n uc)
set(CMAKE_FIND_LIBRARY_SUFFIXES ${usual_suffixes})
find_file(icu_license icu/${ICU_VERSION}/LICENSE PATHS /usr/share REQUIRED) # for who passes the program on

# Its data, cut to what we need of it, under the name by which its code calls it.
enable_language(ASM)
string(REGEX MATCH "^[0-9]+" icu_major ${ICU_VERSION})
set(icu_data ${PROJECT_BINARY_DIR}/icu.dat)
add_custom_command(
  OUTPUT ${icu_data}
  COMMAND ${PROJECT_SOURCE_DIR}/cmake/cut-icu-data ${ICU_DATA_LIBRARY} ${icu_data}
  DEPENDS ${PROJECT_SOURCE_DIR}/cmake/cut-icu-data ${ICU_DATA_LIBRARY}
  VERBATIM)
set(icu_data_source ${PROJECT_BINARY_DIR}/icu_data.S)
configure_file(${PROJECT_SOURCE_DIR}/cmake/icu_data.S.in ${icu_data_source} @ONLY)
set_source_files_properties(${icu_data_source} PROPERTIES OBJECT_DEPENDS ${icu_data})
add_library(termvik_icu_data STATIC ${icu_data_source} ${icu_data})

target_link_libraries(ICU::uc INTERFACE termvik_icu_data)
# Qt brings the system's ICU. Where that is the same release, it would run on our code and its cut data
# if the linker gave out our names.
target_link_options(ICU::uc INTERFACE LINKER:--exclude-libs,ALL)
