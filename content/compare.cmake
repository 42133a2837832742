# SPDX-License-Identifier: MIT
# Renders the models in the build folder BUILD and compares each of FILES in BUILT with DATA, byte by byte.
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} --target models-render RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the models do not render")
endif()
foreach(file IN LISTS FILES)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${BUILT}/${file}.asc ${DATA}/${file}.asc
        RESULT_VARIABLE differs)
    if(NOT differs EQUAL 0)
        message(SEND_ERROR "data/${file}.asc is not what its source gives")
    endif()
endforeach()
