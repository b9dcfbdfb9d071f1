# SPDX-License-Identifier: GPL-3.0-or-later
# Draws the frames of one animation from its template and joins them to a GIF.
#
# MASTER    template; @ANGLE@ is the frame's share of a full turn in degrees, @SHIFT@ its share of WAY
# FRAMES    number of frames        DELAY  time of a frame in 1/100 s
# WIDTH, HEIGHT, OUT                RSVG, CONVERT: the tools

get_filename_component(folder ${OUT} DIRECTORY)
get_filename_component(name ${OUT} NAME_WE)
set(folder ${folder}/${name}.frames)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})

file(READ ${MASTER} template)
set(pictures "")
math(EXPR last "${FRAMES} - 1")
foreach(frame RANGE ${last})
    math(EXPR ANGLE "360 * ${frame} / ${FRAMES}")
    math(EXPR SHIFT "${WAY} * ${frame} / ${FRAMES}")
    string(CONFIGURE "${template}" drawing @ONLY)
    file(WRITE ${folder}/${frame}.svg "${drawing}")
    execute_process(
        COMMAND ${RSVG} -w ${WIDTH} -h ${HEIGHT} -o ${folder}/${frame}.png ${folder}/${frame}.svg
        COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND pictures ${folder}/${frame}.png)
endforeach()
execute_process(
    COMMAND ${CONVERT} -delay ${DELAY} -loop 0 ${pictures} +dither -colors 64 +map -layers Optimize ${OUT}
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${folder})
