# Installs the built library, moves the installed tree, and builds and runs a small program against it: `way` is
# cmake (find_package) or pkg-config.

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY COMMAND_ECHO STDOUT)
endfunction()

file(REMOVE_RECURSE ${scratch})
run(${CMAKE_COMMAND} --install ${build} --config "${config}" --prefix ${scratch}/installed)
file(RENAME ${scratch}/installed ${scratch}/moved)

if(way STREQUAL "cmake")
  run(${CMAKE_COMMAND} -S ${consumer} -B ${scratch}/build -G ${generator} -D CMAKE_CXX_COMPILER=${compiler}
      -D CMAKE_PREFIX_PATH=${scratch}/moved -D CMAKE_BUILD_TYPE=Debug)
  run(${CMAKE_COMMAND} --build ${scratch}/build)
  file(GLOB_RECURSE program ${scratch}/build/consumer ${scratch}/build/consumer.exe)
else()
  find_program(PKG_CONFIG pkg-config)
  if(NOT PKG_CONFIG)
    message("no pkg-config on this machine, nothing to test")
    return()
  endif()
  file(GLOB_RECURSE package ${scratch}/moved/*/varnel.pc)
  cmake_path(GET package PARENT_PATH directory)
  set(ENV{PKG_CONFIG_PATH} ${directory})
  execute_process(COMMAND ${PKG_CONFIG} --cflags --libs varnel OUTPUT_VARIABLE flags
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags UNIX_COMMAND "${flags}")
  set(program ${scratch}/consumer)
  set(ENV{LD_LIBRARY_PATH} ${directory}/..)
  run(${compiler} -std=c++17 ${consumer}/main.cpp -o ${program} ${flags})
endif()
run(${program})
