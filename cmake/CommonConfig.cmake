# One set of compiler rules for every target of the project: strict warnings as errors, no
# implicit conversion between text and bytes, and the sanitizers where they are asked for.
add_library(tessel_options INTERFACE)
target_compile_options(
    tessel_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(
    tessel_options
    INTERFACE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_KEYWORDS
        QT_STRICT_ITERATORS)

if(TESSEL_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(tessel_options INTERFACE ${sanitizers})
    target_link_options(tessel_options INTERFACE ${sanitizers})
endif()
