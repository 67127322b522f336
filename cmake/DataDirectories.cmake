# Where the program looks for what it ships.
#
# A staged tree keeps to itself: its program reads the copy that the target
# "stage" installs under stage/, so that everything works without an install.
# Otherwise the constants below are compiled in, and cmake --install puts the
# files just there.

include(GNUInstallDirs)
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set(CMAKE_INSTALL_PREFIX "/usr" CACHE PATH "where the program goes" FORCE)
endif()

option(ORVANE_STAGED "let the program use the copy of its files in this build tree" ${ORVANE_TESTS})
if(ORVANE_TESTS AND NOT ORVANE_STAGED)
  message(FATAL_ERROR "The tests run the staged program: they need ORVANE_STAGED=ON.")
endif()
set(ORVANE_SHARE_DIR "/usr/share/orvane/" CACHE STRING "directory of the shared data files")
set(ORVANE_DOC_DIR "/usr/share/doc/orvane/" CACHE STRING "directory of the documentation")
set(ORVANE_ICON_DIR "/usr/share/icons/hicolor/" CACHE STRING "directory of the icon theme")

if(ORVANE_STAGED)
  set(orvaneShareDir "${CMAKE_BINARY_DIR}/stage/share/orvane/")
  set(orvaneDocDir "${CMAKE_BINARY_DIR}/stage/share/doc/orvane/")
  set(orvaneIconDir "${CMAKE_BINARY_DIR}/stage/share/icons/hicolor/")
else()
  # The program appends file names: each directory ends in one slash.
  string(REGEX REPLACE "/+$" "/" orvaneShareDir "${ORVANE_SHARE_DIR}/")
  string(REGEX REPLACE "/+$" "/" orvaneDocDir "${ORVANE_DOC_DIR}/")
  string(REGEX REPLACE "/+$" "/" orvaneIconDir "${ORVANE_ICON_DIR}/")
endif()
