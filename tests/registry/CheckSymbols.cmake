# Compares the dynamic symbols LIBRARY defines (demangled, sorted) with the list EXPECTED
# and leaves them in ACTUAL. LIBRARY must import the symbols HOST matches, define none.
execute_process(COMMAND nm -DC --defined-only ${LIBRARY} OUTPUT_VARIABLE defined
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" symbols "${defined}")
list(TRANSFORM symbols REPLACE "^[0-9a-f]* [A-Za-z] " "")
list(REMOVE_DUPLICATES symbols) # constructors and destructors come in two variants
list(SORT symbols)
list(JOIN symbols "\n" symbols)
file(WRITE ${ACTUAL} "${symbols}\n")
execute_process(COMMAND diff -u ${EXPECTED} ${ACTUAL} RESULT_VARIABLE differ)
if(differ)
  message(FATAL_ERROR "${LIBRARY} exports other symbols than its list (diff above). "
          "For a deliberate change, run:\n  cp ${ACTUAL} ${EXPECTED}")
endif()
execute_process(COMMAND nm -DC --undefined-only ${LIBRARY} OUTPUT_VARIABLE undefined)
if(HOST AND (symbols MATCHES "${HOST}" OR NOT undefined MATCHES "${HOST}"))
  message(FATAL_ERROR "${LIBRARY} must leave the host's symbols (${HOST}) undefined")
endif()
