# What an installed program consists of, and the Debian package of it. ./package builds that; the date in it comes
# from SOURCE_DATE_EPOCH, so that the same sources make the same package.
include(GNUInstallDirs)

set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(made ${CMAKE_BINARY_DIR}/packaging)

set(MAINTAINER "The Zephon maintainers <maintainers@zephon.example>")
set(PACKAGE_VERSION ${PROJECT_VERSION}-1)

# Debian wants manuals and changelogs compressed, without the time of it.
function(zephon_install_compressed file name destination)
  find_program(GZIP gzip REQUIRED)
  get_filename_component(target ${name} NAME_WE)
  add_custom_command(OUTPUT ${made}/${name}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${made}
    COMMAND ${GZIP} -9nc ${file} > ${made}/${name}
    DEPENDS ${file} VERBATIM)
  add_custom_target(packaging-${name} ALL DEPENDS ${made}/${name})
  install(FILES ${made}/${name} DESTINATION ${destination})
endfunction()

install(TARGETS zephon zephon-simulator DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/zephon)

install(FILES ${packaging}/zephon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/org.zephon.zephon.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/icons/zephon.svg DESTINATION ${icons}/scalable/apps)
foreach(side 16 22 24 32 48 64 128 256)
  install(FILES ${packaging}/icons/zephon-${side}.png DESTINATION ${icons}/${side}x${side}/apps RENAME zephon.png)
endforeach()

install(FILES ${packaging}/60-zephon-cable.rules DESTINATION lib/udev/rules.d)
zephon_install_compressed(${packaging}/man/zephon.1 zephon.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
zephon_install_compressed(${packaging}/man/zephon-simulator.1 zephon-simulator.1.gz ${CMAKE_INSTALL_MANDIR}/man1)

string(TIMESTAMP PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${packaging}/debian/changelog.in ${made}/changelog.Debian @ONLY)
zephon_install_compressed(${made}/changelog.Debian changelog.Debian.gz ${CMAKE_INSTALL_DOCDIR})
zephon_install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog.gz ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/debian/overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME zephon)
install(FILES docs/device.md docs/export.md docs/findings.md docs/language-file.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/handbook docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${packaging}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zephon)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "diagnostic tool for a mains power conditioner")
set(CPACK_PACKAGE_DESCRIPTION
"Zephon connects to a power conditioner of the Orvantis PCS or Tessara PCS line
through a USB-to-serial cable. It shows live measurements and disturbance
counters, changes limits, outlets and options, draws a live chart and a scope
picture, downloads and saves the logs of the device, and analyses them. From
a timer it writes readings to a file without a display.
.
A simulated conditioner to try it on is included.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(ZEPHON_WINDOW)
  # The window system's side of Qt is loaded when the program starts, where no tool sees it.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n, udev")
  set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
endif()
include(CPack)
