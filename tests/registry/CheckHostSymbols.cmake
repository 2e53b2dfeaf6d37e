# Fails when the plug-in defines a symbol that belongs to the host library.
execute_process(COMMAND nm -D --defined-only --demangle ${PLUGIN}
                OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "nm failed on ${PLUGIN}")
endif()
string(REGEX MATCHALL "[^\n]*(MessageFormatter|Orvane::(format|length)(U8|U16|U16Hex|U32|U32Hex|U64|Bool|String)\\()[^\n]*"
       defined "${symbols}")
if(defined)
  message(FATAL_ERROR "the plug-in defines host symbols:\n${defined}")
endif()
execute_process(COMMAND nm -D --undefined-only --demangle ${PLUGIN} OUTPUT_VARIABLE undefined)
if(NOT undefined MATCHES "MessageFormatter::addNewFormattersById")
  message(FATAL_ERROR "the plug-in does not import the host's registry")
endif()
