# SPDX-License-Identifier: MIT
# Renders one object: OPENSCAD, SOURCE (.scad), WHICH (object name, for sources of several), OUT (.stl, binary).
# OpenSCAD says a lot and goes on after warnings; a warning here is a mistake in a model.
execute_process(COMMAND ${OPENSCAD} --export-format binstl -D which="${WHICH}" -o ${OUT} ${SOURCE}
    RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT status EQUAL 0 OR said MATCHES "(WARNING|ERROR)")
    message(FATAL_ERROR "openscad ${SOURCE}, ${WHICH}:\n${said}")
endif()
