# SPDX-License-Identifier: GPL-3.0-or-later
# The program's texts in each language, and the toolkit's own, are compiled in as :/translations/<name>_<language>.qm.
# vestrola_*.ts: the program's texts; Italian, the language of the sources, has only plurals.
# toolkit_*.ts: texts of the toolkit that its own translation lacks.
get_target_property(VESTROLA_QMAKE Qt6::qmake IMPORTED_LOCATION)
get_filename_component(VESTROLA_QT_PROGRAMS ${VESTROLA_QMAKE} DIRECTORY)
find_program(VESTROLA_LRELEASE lrelease HINTS ${VESTROLA_QT_PROGRAMS} /usr/lib/qt6/bin REQUIRED)
execute_process(COMMAND ${VESTROLA_QMAKE} -query QT_INSTALL_TRANSLATIONS OUTPUT_VARIABLE VESTROLA_QT_TRANSLATIONS
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

set(VESTROLA_TRANSLATION_FOLDER ${CMAKE_CURRENT_BINARY_DIR}/translations)
file(MAKE_DIRECTORY ${VESTROLA_TRANSLATION_FOLDER})
set(VESTROLA_TRANSLATIONS ${VESTROLA_TRANSLATION_FOLDER}/translations.qrc)
set(entries "")
set(compiled "")
file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/*.ts)
foreach(source IN LISTS sources)
  get_filename_component(name ${source} NAME_WE)
  add_custom_command(
    OUTPUT ${VESTROLA_TRANSLATION_FOLDER}/${name}.qm
    COMMAND ${VESTROLA_LRELEASE} -silent ${source} -qm ${VESTROLA_TRANSLATION_FOLDER}/${name}.qm
    DEPENDS ${source} VERBATIM)
  list(APPEND compiled ${VESTROLA_TRANSLATION_FOLDER}/${name}.qm)
  string(APPEND entries "    <file alias=\"${name}.qm\">${name}.qm</file>\n")
endforeach()
foreach(language it en es fr de)
  set(name qtbase_${language}.qm)
  if(NOT EXISTS ${VESTROLA_QT_TRANSLATIONS}/${name})
    message(FATAL_ERROR "the toolkit's translation ${name} is missing: install qt6-translations-l10n")
  endif()
  file(COPY_FILE ${VESTROLA_QT_TRANSLATIONS}/${name} ${VESTROLA_TRANSLATION_FOLDER}/${name} ONLY_IF_DIFFERENT)
  string(APPEND entries "    <file alias=\"${name}\">${name}</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${VESTROLA_TRANSLATIONS} CONTENT
     "<RCC>\n  <qresource prefix=\"/translations\">\n${entries}  </qresource>\n</RCC>\n" @ONLY)
qt6_add_resources(VESTROLA_TRANSLATION_RESOURCE ${VESTROLA_TRANSLATIONS})
set_property(SOURCE ${VESTROLA_TRANSLATION_RESOURCE} APPEND PROPERTY OBJECT_DEPENDS "${compiled}")
