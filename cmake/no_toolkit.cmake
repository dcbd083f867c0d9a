# cmake -DPROGRAM=... -P no_toolkit.cmake: fails where the program is linked with the toolkit, by itself or by a library.
execute_process(COMMAND ldd ${PROGRAM} OUTPUT_VARIABLE libraries RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT libraries MATCHES "libstdc")
    message(FATAL_ERROR "${PROGRAM} could not be looked at")
endif()
if(libraries MATCHES "(libQt|libQCustomPlot|libX11|libxcb|libGL)[^\n]*")
    message(FATAL_ERROR "${PROGRAM} is linked with ${CMAKE_MATCH_0}")
endif()
