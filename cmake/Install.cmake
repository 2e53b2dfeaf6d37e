# What `cmake --install` lays out, relative to the prefix:
#   bin/ovfmt                                 the command-line host
#   LIBDIR/libOrvaneHost.so.0                 the host library (and its symlinks)
#   LIBDIR/orvane/libKaMessageFormatter.so    the plug-in, under the name hosts load
#   include/orvane/...                        the public headers, tracing/TypedField.h among them
#   LIBDIR/cmake/Orvane/                      the CMake package: Orvane::Host,
#                                             Orvane::KaMessageFormatter, Orvane::ovfmt
#   LIBDIR/pkgconfig/                         orvane-host.pc and orvane.pc
#   share/man/man1/ovfmt.1                    generated from ovfmt --help and --version
#   share/doc/orvane/                         README.md and every docs/*.md
#   ORVANE_INSTALL_PYTHONDIR/orvane/          the Python package (python/), when built
# Every path inside the installed files is relative to the prefix, so an installed tree
# still works after it is moved.
include(CMakePackageConfigHelpers)

set(ORVANE_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Orvane")
set(ORVANE_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(ORVANE_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/orvane")
# The Python module installs here (python/CMakeLists.txt), and the package with it.
set(ORVANE_INSTALL_PYTHONDIR "lib/python3/dist-packages" CACHE STRING
    "Where the Python module installs, relative to the prefix")

install(TARGETS OrvaneHost ovfmt EXPORT OrvaneTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS KaMessageFormatter EXPORT OrvaneTargets
  LIBRARY DESTINATION ${ORVANE_PLUGIN_SUBDIR})
install(DIRECTORY registry host address mpls bgp keys packet
  DESTINATION ${ORVANE_INCLUDE_DIR} FILES_MATCHING PATTERN "*.h")
# Of tracing/, the writer's header alone: the reader's headers are no public interface.
install(FILES tracing/TypedField.h DESTINATION ${ORVANE_INCLUDE_DIR}/tracing)

# find_package(Orvane 0.1 CONFIG): any 0.x release of at least the version asked for.
install(EXPORT OrvaneTargets NAMESPACE Orvane:: DESTINATION ${ORVANE_CMAKE_DIR})
configure_package_config_file(cmake/OrvaneConfig.cmake.in OrvaneConfig.cmake
  INSTALL_DESTINATION ${ORVANE_CMAKE_DIR})
write_basic_package_version_file(OrvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrvaneConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/OrvaneConfigVersion.cmake
  DESTINATION ${ORVANE_CMAKE_DIR})

# pkg-config files find the prefix from their own place, ${pcfiledir}.
file(RELATIVE_PATH ORVANE_PREFIX_FROM_PKGCONFIG "/${ORVANE_PKGCONFIG_DIR}" "/")
string(REGEX REPLACE "/$" "" ORVANE_PREFIX_FROM_PKGCONFIG "${ORVANE_PREFIX_FROM_PKGCONFIG}")
foreach(pc orvane-host orvane)
  configure_file(cmake/${pc}.pc.in ${pc}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc}.pc DESTINATION ${ORVANE_PKGCONFIG_DIR})
endforeach()

install(FILES README.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/orvane)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/orvane
  FILES_MATCHING PATTERN "*.md")

include(cmake/ManPage.cmake)
