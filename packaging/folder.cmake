# All in one folder, which runs wherever it lies; ./package makes archives of it.
if(TARGET termvik)
  install(TARGETS termvik DESTINATION .)
endif()
if(TARGET termvik-glossary)
  install(TARGETS termvik-glossary DESTINATION .)
endif()
install(FILES ${glossaries} ${root}/LICENSE DESTINATION .)
install(DIRECTORY ${root}/LICENSES DESTINATION .)

# What ./install puts into the user's menu.
if(NOT WIN32)
  install(PROGRAMS portable/install DESTINATION .)
  install(FILES ${app_id}.desktop DESTINATION menu/applications)
  install_icons(menu/icons)
endif()
