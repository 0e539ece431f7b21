# Homebrew links most libraries into its own prefix, which CMake searches. ICU it keeps apart, because the
# system has one of its own without headers.
find_program(QUILLET_BREW brew)
if(QUILLET_BREW)
    execute_process(COMMAND ${QUILLET_BREW} --prefix icu4c
        OUTPUT_VARIABLE icu OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    list(APPEND CMAKE_PREFIX_PATH ${icu})
endif()
