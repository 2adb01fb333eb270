# The one place for compiler flags: every target links lingomat_flags.
add_library(lingomat_flags INTERFACE)

target_compile_options(lingomat_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

target_compile_definitions(lingomat_flags INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(LINGOMAT_SANITIZE)
  target_compile_options(lingomat_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(lingomat_flags INTERFACE -fsanitize=address,undefined)
endif()

if(LINGOMAT_FUZZ)
  target_compile_options(lingomat_flags INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(lingomat_flags INTERFACE -fsanitize=address,undefined)
endif()
