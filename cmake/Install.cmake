# What is installed, and the staged copy in the build tree.

# The constants compiled in are what counts: a staged program installed
# elsewhere would still read this build tree.
if(ORVANE_STAGED)
  install(CODE "
    if(NOT CMAKE_INSTALL_PREFIX STREQUAL \"${CMAKE_BINARY_DIR}/stage\")
      message(FATAL_ERROR \"This tree's program reads ${CMAKE_BINARY_DIR}/stage. \"
                          \"Configure with 'cmake --preset release' and build again to install it.\")
    endif()" ALL_COMPONENTS)
endif()

install(TARGETS orvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
install(FILES ${orvaneHelpFile} DESTINATION ${orvaneShareDir} COMPONENT data)
install(FILES data/syntax.ini DESTINATION ${orvaneShareDir} COMPONENT data RENAME orvanesyntax.ini)
install(DIRECTORY data/manual/ DESTINATION ${orvaneDocDir}manual COMPONENT data FILES_MATCHING PATTERN "*.html")
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${orvaneDocDir} COMPONENT data)
install(FILES data/icons/orvane.png DESTINATION ${orvaneIconDir}16x16/apps COMPONENT data)
install(FILES data/icons/orvane.svg DESTINATION ${orvaneIconDir}scalable/apps COMPONENT data)
install(FILES data/orvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT data)
install(FILES data/orvane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT data)

if(ORVANE_STAGED)
  set(staged ${CMAKE_BINARY_DIR}/staged)  # its time says when the copy was made
  file(GLOB shipped CONFIGURE_DEPENDS data/manual/* data/icons/* data/orvane.* data/syntax.ini README.md CHANGELOG.md LICENSE)
  add_custom_command(
    OUTPUT ${staged}
    COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${CMAKE_BINARY_DIR}/stage > ${staged}.log
    COMMAND ${CMAKE_COMMAND} -E touch ${staged}
    DEPENDS orvane ${orvaneHelpFile} ${shipped}
    COMMENT "Installing into stage/"
    VERBATIM)
  add_custom_target(stage ALL DEPENDS ${staged})
  add_dependencies(stage help_pages)
endif()
