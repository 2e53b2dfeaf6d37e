# LTTng-UST, which the traced example, the tracepoint benchmark and their tests need.
# Without it everything else builds as before: PkgConfig::LTTNG_UST is then no target.
# Recording and reading traces (the demo's trace, the tests) also needs the programs
# lttng, lttng-sessiond and babeltrace2: ORVANE_CAN_RECORD says whether all are there.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(LTTNG_UST QUIET IMPORTED_TARGET lttng-ust)
endif()
find_program(ORVANE_LTTNG lttng)
find_program(ORVANE_LTTNG_SESSIOND lttng-sessiond)
find_program(ORVANE_BABELTRACE2 babeltrace2)
if(NOT TARGET PkgConfig::LTTNG_UST)
  message(STATUS "LTTng-UST not found (pkg-config lttng-ust): tracing parts left out")
  set(ORVANE_CAN_RECORD OFF)
elseif(ORVANE_LTTNG AND ORVANE_LTTNG_SESSIOND AND ORVANE_BABELTRACE2)
  set(ORVANE_CAN_RECORD ON)
else()
  message(STATUS "lttng, lttng-sessiond or babeltrace2 not found: traces not recorded")
  set(ORVANE_CAN_RECORD OFF)
endif()
