# SPDX-License-Identifier: GPL-3.0-or-later
# Icons are compiled in: the named files of the installed Breeze theme are copied (links resolved) into the resource
# :/icons/vestrola at sizes 16 and 22, with the theme's licence. A name that the theme lacks stops the configuration.
set(VESTROLA_ICON_NAMES
  application-exit
  application-vnd.ms-access
  archive-remove
  arrow-down-double
  arrow-right-double
  checkbox
  choice-round
  code-variable
  document-edit
  document-edit-verify
  document-new
  document-open
  document-print
  document-properties
  document-save
  document-save-as
  document-send
  edit-clear-all
  edit-clear-locationbar-ltr
  edit-clear-locationbar-rtl
  edit-copy
  edit-cut
  edit-delete
  edit-find
  edit-paste
  edit-redo
  edit-rename
  edit-select-all
  edit-select-none
  edit-table-delete-column
  edit-table-delete-row
  edit-table-insert-column-right
  edit-table-insert-row-below
  edit-undo
  folder
  folder-new
  folder-open
  format-border-set-all
  format-indent-less
  format-indent-more
  format-justify-center
  format-justify-fill
  format-justify-left
  format-justify-right
  format-list-ordered
  format-list-unordered
  format-text-bold
  format-text-code
  format-text-color
  format-text-italic
  format-text-underline
  globe
  go-down
  go-top
  go-up
  help-about
  help-contents
  insert-horizontal-rule
  insert-image
  insert-link
  insert-table
  insert-text-frame
  languages
  list-add-user
  list-remove-user
  mail-attachment
  mail-mark-important
  mail-message
  mail-message-new
  media-playback-stop
  resource-group
  server-database
  text-csv
  text-field
  text-html
  user-properties
  view-form
  view-hidden
  view-list-details
  view-list-text
  view-pim-contacts
  view-visible
  window-close)

set(breeze_dir /usr/share/icons/breeze CACHE PATH "Breeze icon theme, the source of the compiled-in icons")
set(breeze_licence /usr/share/doc/breeze-icon-theme/copyright CACHE FILEPATH "licence of the Breeze icon theme")

function(vestrola_icons out_resource)
  set(dir ${CMAKE_CURRENT_BINARY_DIR}/icons)
  set(entries "    <file alias=\"index.theme\">index.theme</file>\n    <file alias=\"COPYING\">COPYING</file>\n")
  foreach(size 16 22)
    foreach(name ${VESTROLA_ICON_NAMES})
      set(found "")
      foreach(group actions apps categories devices emblems mimetypes places preferences status)
        if(EXISTS ${breeze_dir}/${group}/${size}/${name}.svg)
          file(REAL_PATH ${breeze_dir}/${group}/${size}/${name}.svg found)
          break()
        endif()
      endforeach()
      if(NOT found)
        message(FATAL_ERROR "icon ${name} at size ${size} is not in ${breeze_dir} (package breeze-icon-theme)")
      endif()
      configure_file(${found} ${dir}/${size}/${name}.svg COPYONLY)
      string(APPEND entries "    <file>${size}/${name}.svg</file>\n")
    endforeach()
  endforeach()
  configure_file(${breeze_licence} ${dir}/COPYING COPYONLY)
  configure_file(${CMAKE_SOURCE_DIR}/assets/icons/index.theme ${dir}/index.theme COPYONLY)
  file(CONFIGURE OUTPUT ${dir}/vestrola_icons.qrc CONTENT
    "<RCC>\n  <qresource prefix=\"/icons/vestrola\">\n@entries@  </qresource>\n</RCC>\n" @ONLY)
  set(${out_resource} ${dir}/vestrola_icons.qrc PARENT_SCOPE)
endfunction()

vestrola_icons(VESTROLA_ICON_RESOURCE)
