# ovfmt.1, written by help2man from what `ovfmt --help` and `ovfmt --version` print, so
# the manual says what the program does; ovfmt.h2m adds the sections --help has no
# room for.
find_program(HELP2MAN help2man)
if(NOT HELP2MAN)
  message(STATUS "The ovfmt manual page is not built: it needs help2man")
  return()
endif()
set(ORVANE_MAN_PAGE ${CMAKE_CURRENT_BINARY_DIR}/ovfmt.1)
set(ORVANE_MAN_EXTRA ${PROJECT_SOURCE_DIR}/tools/ovfmt/ovfmt.h2m)
add_custom_command(OUTPUT ${ORVANE_MAN_PAGE}
  COMMAND ${HELP2MAN} --no-info --section 1 --include ${ORVANE_MAN_EXTRA}
          --name "decode binary trace values through formatter plug-ins"
          --output ${ORVANE_MAN_PAGE} $<TARGET_FILE:ovfmt>
  DEPENDS ovfmt ${ORVANE_MAN_EXTRA}
  COMMENT "Writing the ovfmt manual page")
add_custom_target(ovfmt_man ALL DEPENDS ${ORVANE_MAN_PAGE})
install(FILES ${ORVANE_MAN_PAGE} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
