# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package: `cpack -G DEB` in the folder of the preset "package". `./run package` does it all.

# Manual pages and changelogs, packed without a name or a time.
find_program(GZIP gzip REQUIRED)
set(packed_folder ${CMAKE_BINARY_DIR}/packed)
file(MAKE_DIRECTORY ${packed_folder})
# vestrola_pack(<source> <name>): packs a file as packed/<name>
function(vestrola_pack source name)
  add_custom_command(
    OUTPUT ${packed_folder}/${name}
    COMMAND ${GZIP} -9 -n -c ${source} > ${packed_folder}/${name}
    DEPENDS ${source})
  set_property(GLOBAL APPEND PROPERTY vestrola_packed ${packed_folder}/${name})
endfunction()
vestrola_pack(${CMAKE_SOURCE_DIR}/assets/desktop/vestrola.1 vestrola.1.gz)
vestrola_pack(${CMAKE_SOURCE_DIR}/assets/desktop/vestrola-apri.1 vestrola-apri.1.gz)
vestrola_pack(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog.gz)
vestrola_pack(${CMAKE_SOURCE_DIR}/packaging/changelog changelog.Debian.gz)
get_property(packed GLOBAL PROPERTY vestrola_packed)
add_custom_target(vestrola_packed ALL DEPENDS ${packed})

# All that is installed
add_custom_target(vestrola_package)
add_dependencies(vestrola_package vestrola vestrola-apri vestrola-pst vestrola_browser vestrola_template_database
                 vestrola_desktop_icons vestrola_packed)

set(plain PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(FILES ${packed_folder}/vestrola.1.gz ${packed_folder}/vestrola-apri.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 ${plain})
install(FILES packaging/copyright ${packed_folder}/changelog.gz ${packed_folder}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DOCDIR} ${plain})
install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME vestrola ${plain})

# What the program needs besides the libraries that it is linked to; those are found by dpkg-shlibdeps.
file(STRINGS packaging/packages needed REGEX "^run ")
list(TRANSFORM needed REPLACE "^run " "")
list(JOIN needed ", " needed)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vestrola)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Vestrola maintainers <info@quintara.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "send a personal copy of one message to everybody on a list")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Vestrola keeps recipients in groups in an Access database, lets an HTML
message with placeholders be written, and delivers an individual copy to
each selected recipient through an account's mail server. Whoever could
not be reached stays selected for the next run.
.
Recipients come in by hand, from text files, Access databases, the
address book and Outlook.")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.quintara.example/)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION mail)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS ${needed})
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS gnome-keyring)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
