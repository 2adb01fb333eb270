# lingomat_library(<name> HEADERS ... SOURCES ... [USES ...] [PRIVATE_USES ...])
#
# One folder, one static library. Its include root is its own folder and nothing else, so that a header
# can be included only by the libraries that name this one under USES: an include that points sideways or
# up does not build. PRIVATE_USES stay invisible to those who use the library.
function(lingomat_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;USES;PRIVATE_USES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "lingomat_library(${name}): unknown arguments ${arg_UNPARSED_ARGUMENTS}")
  endif()

  add_library(${name} STATIC ${arg_SOURCES})
  target_sources(${name} PUBLIC
    FILE_SET HEADERS BASE_DIRS "${CMAKE_CURRENT_SOURCE_DIR}" FILES ${arg_HEADERS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_link_libraries(${name}
    PUBLIC lingomat_flags ${arg_USES}
    PRIVATE ${arg_PRIVATE_USES})
endfunction()
