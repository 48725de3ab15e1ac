# Fails unless the example host builds against the installed package and behaves when started, each
# installed header compiles alone, and all that they declare can be linked.
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${WORK}/build -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/build)

run(${CMAKE_COMMAND} -S ${SURFACE} -B ${WORK}/surface -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/surface)
run(${WORK}/surface/surface OUTPUT "All there")
run(${WORK}/surface/surface OUTPUT "Version: [0-9.]+, as compiled")
run(${WORK}/surface/surface OUTPUT "Languages: [^\n]*/installed/share/[a-z]+/languages\n")

run(${WORK}/surface/surface OUTPUT "Images: refresh.gif checked.png unchecked@2x.png add.svg\n")

run(${CMAKE_COMMAND} -S ${SNIPPETS} -B ${WORK}/snippets -G Ninja -DDOCUMENT=${DOCUMENT}
  -DCMAKE_PREFIX_PATH=${WORK}/installed "-DCMAKE_CXX_FLAGS=${FLAGS}"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK}/snippets)

# A host may forbid itself whatever the toolkit lets it forbid, and be of a later standard.
set(strictness
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_JAVA_STYLE_ITERATORS
  QT_NO_LINKED_LIST QT_STRICT_ITERATORS QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060000)
list(TRANSFORM strictness PREPEND -D)
execute_process(COMMAND pkg-config --cflags Qt5Widgets Qt5Sql
  OUTPUT_VARIABLE toolkit OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE -I -isystem toolkit "${toolkit}")
separate_arguments(toolkit UNIX_COMMAND "${toolkit}")
set(includes ${WORK}/installed/include/trelprogramschedulewidgets)
file(GLOB_RECURSE headers RELATIVE ${includes} ${includes}/*.h)
list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n")
list(JOIN headers "" headers)
file(WRITE ${WORK}/headers.cpp "${headers}")
foreach(compiler IN ITEMS g++ clang++)
  foreach(standard IN ITEMS 17 20 2b)
    run(${compiler} -std=c++${standard} -fsyntax-only -fPIC -Werror
      -Wall -Wextra -Wpedantic -Wshadow -Wconversion ${strictness} ${toolkit} -I${includes}
      ${WORK}/headers.cpp)
  endforeach()
endforeach()

run(${WORK}/build/minimal-host STATUS 2 OUTPUT "Usage: minimal-host")
run(${WORK}/build/minimal-host ${WORK}/no/such/folder/schedule.db STATUS 1 OUTPUT "no/such/folder")
run(${WORK}/installed/bin/schedulectl --help OUTPUT "schedulectl")
foreach(program IN ITEMS schedule-editor schedulectl schedule-player)
  run(${WORK}/installed/bin/${program} --version
    OUTPUT "^${program} [0-9]+\\.[0-9]+\\.[0-9]+ \\(.*Qt 5\\.[0-9.]+\\)\n$")
endforeach()

# Without CMake, by what pkg-config tells.
set(ENV{PKG_CONFIG_PATH} ${WORK}/installed/${LIBDIR}/pkgconfig)
foreach(module IN ITEMS trelprogramschedulewidgets trelprogramschedule)
  run(pkg-config --validate ${module})
endforeach()
execute_process(
  COMMAND pkg-config --cflags --libs
    trelprogramschedulewidgets trelprogramschedule
  OUTPUT_VARIABLE told OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(told UNIX_COMMAND "${told}")
execute_process(
  COMMAND pkg-config --variable=images trelprogramschedulewidgets
  OUTPUT_VARIABLE images OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
find_program(RCC NAMES rcc-qt5 rcc PATHS /usr/lib/qt5/bin REQUIRED)
run(${RCC} --name trel_editor_images -o ${WORK}/images.cpp ${images})
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
run(${COMPILER} -std=c++17 -fPIC ${flags} ${EXAMPLE}/main.cpp -o ${WORK}/told-host ${told}
  -Wl,-rpath,${WORK}/installed/${LIBDIR})
run(${WORK}/told-host STATUS 2 OUTPUT "Usage: minimal-host")

# The tree can be moved, and media are read by whatever part of it needs them.
file(RENAME ${WORK}/installed ${WORK}/moved)
file(GLOB_RECURSE readers ${WORK}/moved/media-reader)
list(LENGTH readers count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "One program that reads media is expected, and not: ${readers}")
endif()
get_filename_component(library_dir ${readers}/../.. ABSOLUTE)

# A host with a service, a sheet and a language of its own, from the tree as it lies now.
set(own ${WORK}/own-service)
run(${CMAKE_COMMAND} -S ${OWN_EXAMPLE} -B ${own} -G Ninja
  -DCMAKE_PREFIX_PATH=${WORK}/moved "-DCMAKE_CXX_FLAGS=${FLAGS} -Wall -Wextra -Werror"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${own})
run(ldd ${own}/own-service OUTPUT libtrelprogramschedulewidgets WITHOUT "libtrelprogramschedule\\.so")
run(${own}/own-service STATUS 2 OUTPUT "schedule")
run(${own}/own-service ${WORK}/none.json STATUS 1 OUTPUT "none.json")
run(${own}/own-service --picture ${own}/picture.png ${OWN_EXAMPLE}/station.json OUTPUT "Palinsesto")
run(${own}/own-service --sheet ${OWN_EXAMPLE}/hooks.qss --picture ${own}/hooks.png
  ${OWN_EXAMPLE}/station.json OUTPUT "Palinsesto" WITHOUT "Could not")
if(NOT EXISTS ${own}/picture.png OR NOT EXISTS ${own}/hooks.png)
  message(FATAL_ERROR "The host has saved no picture")
endif()
run(${CMAKE_COMMAND} -S ${OWN_TEST} -B ${own}/test -G Ninja -DEXAMPLE=${OWN_EXAMPLE}
  -DCMAKE_PREFIX_PATH=${WORK}/moved "-DCMAKE_CXX_FLAGS=${FLAGS} -Wall -Wextra -Werror"
  -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${own}/test)
run(${own}/test/tst_OwnService)

set(import ${WORK}/moved/bin/schedulectl import --database ${WORK}/media.db)
run(${import} ${MEDIA}/Opening.mp4 OUTPUT "Opening +video +0:00:12.000")

# The player finds its libraries in the moved tree too.
run(${WORK}/moved/bin/schedule-player --version OUTPUT "schedule-player [0-9]")
if(NOT EXISTS ${WORK}/moved/lib/systemd/user/schedule-player.service)
  message(FATAL_ERROR "The unit of the player is missing")
endif()

# It alone of all that a host links brings the libraries for media files along.
foreach(program IN ITEMS
    bin/schedule-editor bin/schedulectl ${library_dir}/libtrelprogramschedule.so)
  cmake_path(ABSOLUTE_PATH program BASE_DIRECTORY ${WORK}/moved)
  run(ldd ${program} OUTPUT libQt5Core WITHOUT "lib(av|sw)[a-z]+\\.so")
endforeach()
run(ldd ${readers} OUTPUT "libavformat.*libswscale|libswscale.*libavformat" WITHOUT libQt5Widgets)

# Without it, or with one that is broken, the operator learns which file it is, and everything else
# goes on.
file(REMOVE ${readers})
run(${import} ${MEDIA}/Weather.mp4 udp://@239.0.0.1:1234 STATUS 1
  OUTPUT "Weather.mp4: Media cannot be read, .* missing: ${readers}\\.\n.*live")
file(WRITE ${readers} "no program")
run(${import} ${MEDIA}/Weather.mp4 udp://@239.0.0.1:1235 STATUS 1
  OUTPUT "Weather.mp4: Media cannot be read, .* cannot be started: ${readers}: .*live")
run(${WORK}/moved/bin/schedulectl programs --database ${WORK}/media.db OUTPUT "Opening")
