# LTTng-UST, which the traced example, the tracepoint benchmark and their tests need.
# Without it everything else builds as before: PkgConfig::LTTNG_UST is then no target.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(LTTNG_UST QUIET IMPORTED_TARGET lttng-ust)
endif()
if(NOT TARGET PkgConfig::LTTNG_UST)
  message(STATUS "LTTng-UST not found (pkg-config lttng-ust): tracing parts left out")
endif()
