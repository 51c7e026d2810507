# Spread over the system as is usual there. The program keeps its files beside itself, so the launcher in
# bin starts it for each user from a folder of their own.
include(GNUInstallDirs)
if("$CACHE{CMAKE_INSTALL_DOCDIR}" STREQUAL "") # else its last part would be the project's name, Termvik
  set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/termvik)
endif()
set(program_dir ${CMAKE_INSTALL_LIBDIR}/termvik)
set(glossary_dir ${CMAKE_INSTALL_DATADIR}/termvik)

if(TARGET termvik)
  install(TARGETS termvik DESTINATION ${program_dir})
  install(FILES ${glossaries} DESTINATION ${glossary_dir})

  # From bin and from the program's folder the others are found by the way that leads there, so that
  # the whole can be moved.
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR}
             OUTPUT_VARIABLE PROGRAM_FROM_BIN)
  string(APPEND PROGRAM_FROM_BIN /termvik)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DATADIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR}
             OUTPUT_VARIABLE DATA_FROM_BIN)
  string(APPEND DATA_FROM_BIN /termvik)
  configure_file(termvik.in termvik @ONLY)
  install(PROGRAMS ${CMAKE_CURRENT_BINARY_DIR}/termvik DESTINATION ${CMAKE_INSTALL_BINDIR})

  # For the user whose home cannot be written, the glossaries lie beside the program as well.
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DATADIR BASE_DIRECTORY
             ${CMAKE_INSTALL_FULL_LIBDIR}/termvik OUTPUT_VARIABLE data_from_program)
  foreach(glossary IN LISTS glossaries)
    cmake_path(GET glossary FILENAME name)
    file(CREATE_LINK ${data_from_program}/termvik/${name} ${CMAKE_CURRENT_BINARY_DIR}/${name} SYMBOLIC)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name} DESTINATION ${program_dir})
  endforeach()

  install(FILES ${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install_icons(${CMAKE_INSTALL_DATADIR}/icons)
  install(FILES man/termvik.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

if(TARGET termvik-glossary)
  install(TARGETS termvik-glossary DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES man/termvik-glossary.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
install(FILES man/termvik-glossary.5 DESTINATION ${CMAKE_INSTALL_MANDIR}/man5)

# The documents of users, with their way to each other.
install(FILES ${root}/README.md ${root}/README.sv.md ${root}/CHANGELOG.md ${root}/LICENSE
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${root}/LICENSES DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${root}/docs/guide.md ${root}/docs/guide.sv.md ${root}/docs/your-own-lists.md
              ${root}/docs/glossary-format.md ${root}/docs/files.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(DIRECTORY ${root}/docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs FILES_MATCHING PATTERN "*.png")
