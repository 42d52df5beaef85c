# What our own builds ask of the compiler; a project that takes varnel in keeps its own choices.

find_program(VARNEL_CCACHE ccache)
if(PROJECT_IS_TOP_LEVEL AND VARNEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers are cached only if their macros and times are not held against them.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${VARNEL_CCACHE})
endif()

if(VARNEL_SANITIZE)
  add_compile_options(-fsanitize=${VARNEL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VARNEL_SANITIZE})
endif()

# C++17 and our warnings for one target.
function(varnel_compile_settings target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                             $<$<BOOL:${VARNEL_WERROR}>:-Werror>)
    # Some classes have no virtual destructor, since their slots are fixed. Where one is really deleted through
    # a base, g++ tells; clang also means std::make_shared, which knows what it made.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-delete-non-abstract-non-virtual-dtor>)
  endif()
endfunction()
