# Writes the commit that is built into the header OUT, as TREL_COMMIT: empty where the sources are no
# checkout, and with a plus where they differ from the commit. Touches the header only when it changes.
set(commit "")
find_program(git git)
if(git AND EXISTS ${SOURCE}/.git)
  execute_process(COMMAND ${git} -C ${SOURCE} describe --always --abbrev=12 --exclude=* --dirty=+
    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
file(CONFIGURE OUTPUT ${OUT} CONTENT "#pragma once\n\n#define TREL_COMMIT \"${commit}\"\n")
