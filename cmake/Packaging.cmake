# The Debian package and tarball: `cpack -G DEB` (or TGZ) in a build folder after the
# build. One package holds everything `cmake --install` lays out (cmake/Install.cmake):
# the plug-in, the host library, ovfmt and its manual page, the headers, the CMake and
# pkg-config files, the Python module when it is built (in ORVANE_INSTALL_PYTHONDIR;
# the package then depends on the python3 it was built for), orvane-trace-record, and the
# docs with the examples they use under share/doc/orvane.
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_VENDOR "Orvane developers")
set(CPACK_PACKAGE_CONTACT "Orvane developers <orvane-dev@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION "\
Format and length functions for 108 type ids of binary trace values (addresses, MPLS, \
BGP, service keys, packets), the host library that loads and registers them, and \
ovfmt, which decodes values from the command line.")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
# Dependencies from the libraries the binaries link (dpkg-shlibdeps); the plug-in's
# own link to the host library is resolved inside the package.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
if(ORVANE_PYTHON_DEB_DEPENDS)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "${ORVANE_PYTHON_DEB_DEPENDS}")
endif()
# What the installed docs and orvane-trace-record use, not what the libraries need.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "lttng-tools, babeltrace2, python3-bt2, python3-dask")
# Removing the package removes the byte code Python compiled for the module (prerm), so
# that purging it leaves nothing behind. The package installs under /usr.
if(TARGET orvane_python)
  set(ORVANE_DEB_PYTHON_MODULE_DIR "/usr/${ORVANE_INSTALL_PYTHONDIR}/orvane")
  configure_file(cmake/debian/prerm.in debian/prerm @ONLY
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                     WORLD_READ WORLD_EXECUTE)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_BINARY_DIR}/debian/prerm")
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endif()

include(CPack)
