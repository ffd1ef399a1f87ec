# SPDX-License-Identifier: GPL-3.0-or-later
# Copies the templates into a program folder: what the user may have changed only where it is missing, the
# language texts always.
#
#   cmake -DTEMPLATES=... -DFOLDER=... -P fill.cmake
file(GLOB_RECURSE files RELATIVE ${TEMPLATES} ${TEMPLATES}/*)
foreach(file ${files})
  if(NOT EXISTS ${FOLDER}/${file} OR file STREQUAL "LANG.lng")
    configure_file(${TEMPLATES}/${file} ${FOLDER}/${file} COPYONLY)
  endif()
endforeach()
