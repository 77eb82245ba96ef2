# The settings that every target of the project shares, and the one way to declare a layer.

add_library(talivane_settings INTERFACE)
target_compile_options(talivane_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(TALIVANE_WERROR)
  target_compile_options(talivane_settings INTERFACE -Werror)
endif()
if(TALIVANE_SANITIZE)
  target_compile_options(talivane_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  # GCC takes the sanitizers' own checks for uses of values that were never set.
  target_compile_options(talivane_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(talivane_settings INTERFACE -fsanitize=address,undefined)
endif()
if(TALIVANE_FUZZ)
  target_compile_options(talivane_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
target_compile_definitions(talivane_settings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                       QT_NO_KEYWORDS)

# talivane_layer(NAME SOURCES ... LINKS ...): a static library for one layer. It links only the layers
# and libraries named here, so that a layer that uses more than its row allows fails to link.
function(talivane_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${LAYER_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC ${LAYER_LINKS} PRIVATE talivane_settings)
endfunction()
