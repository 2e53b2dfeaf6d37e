# The Debian package and tarball: `cpack -G DEB` (or TGZ) in a build folder after the
# build. One package holds everything `cmake --install` lays out (cmake/Install.cmake):
# the plug-in, the host library, ovfmt and its manual page, the headers, and the CMake
# and pkg-config files. The Python module joins it once it is built (installed into
# ORVANE_INSTALL_PYTHONDIR; it will add python3 to CPACK_DEBIAN_PACKAGE_DEPENDS).
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

include(CPack)
