# What `cmake --install` lays out, relative to the prefix:
#   bin/ovfmt                                 the command-line host
#   LIBDIR/libOrvaneHost.so.0                 the host library (and its symlinks)
#   LIBDIR/orvane/libKaMessageFormatter.so    the plug-in, under the name hosts load
#   include/orvane/...                        the public headers, tracing/TypedField.h among them
#   LIBDIR/cmake/Orvane/                      the CMake package: Orvane::Host,
#                                             Orvane::KaMessageFormatter, Orvane::ovfmt
#   LIBDIR/pkgconfig/                         orvane-host.pc and orvane.pc
#   share/man/man1/ovfmt.1                    generated from ovfmt --help and --version
#   bin/orvane-trace-record                   scripts/trace-record, which records a traced run
#   share/orvane/lttng-daemon.bash            the session-daemon helper it sources
#   share/doc/orvane/                         README.md and every docs/*.md
#   share/doc/orvane/examples/                the examples the docs use: fleet_report.py,
#                                             decode_records.py, call_exported.cpp, the
#                                             value files and the traced program speaker/
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

# The recorder under a name of the project's own on PATH; it finds its helper in
# share/orvane relative to bin/.
install(PROGRAMS scripts/trace-record DESTINATION ${CMAKE_INSTALL_BINDIR}
  RENAME orvane-trace-record)
install(FILES scripts/lttng-daemon.bash DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/orvane)

set(ORVANE_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/orvane)
install(FILES README.md DESTINATION ${ORVANE_DOC_DIR})
install(DIRECTORY docs/ DESTINATION ${ORVANE_DOC_DIR} FILES_MATCHING PATTERN "*.md")
install(PROGRAMS examples/fleet_report.py examples/decode_records.py
  DESTINATION ${ORVANE_DOC_DIR}/examples)
install(FILES examples/call_exported.cpp examples/demo.txt examples/records.txt
  DESTINATION ${ORVANE_DOC_DIR}/examples)
install(DIRECTORY examples/speaker DESTINATION ${ORVANE_DOC_DIR}/examples)

include(cmake/ManPage.cmake)
