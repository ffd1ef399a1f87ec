# SPDX-License-Identifier: GPL-3.0-or-later
# Makes FILE with MAKEDB unless it is there already, and touches STAMP.
get_filename_component(folder ${FILE} DIRECTORY)
file(MAKE_DIRECTORY ${folder})
if(NOT EXISTS ${FILE})
  execute_process(COMMAND ${MAKEDB} ${FILE} COMMAND_ERROR_IS_FATAL ANY)
endif()
file(TOUCH ${STAMP})
