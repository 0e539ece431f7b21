# The one way in which a folder of src/ becomes a target: quillet_library(<folder> SOURCES … LINK …).

find_program(QUILLET_CCACHE ccache)
if(QUILLET_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${QUILLET_CCACHE})
endif()

add_library(quillet_options INTERFACE)
target_include_directories(quillet_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(quillet_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    # What is gone by the oldest Qt is not there, and what newer ones deprecate is still right.
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_WARN_DEPRECATED_UP_TO=0x060400)
target_compile_options(quillet_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual)
if(QUILLET_WARNINGS_AS_ERRORS)
    target_compile_options(quillet_options INTERFACE -Werror)
endif()
if(QUILLET_SANITIZE)
    # Only what this compiler compiles: the checks of the macOS sources have another one.
    target_compile_options(quillet_options INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=address,undefined>
        $<$<COMPILE_LANGUAGE:CXX>:-fno-sanitize-recover=undefined>
        -fno-omit-frame-pointer)
    target_link_options(quillet_options INTERFACE -fsanitize=address,undefined)
endif()

# quillet_library(<name> SOURCES <files…> LINK <targets…>)
# Headers stand among the sources; each of them must compile alone.
function(quillet_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(headers ${arg_SOURCES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    set(sources ${arg_SOURCES})
    list(FILTER sources EXCLUDE REGEX "\\.h$")
    if(sources)
        add_library(${name} STATIC ${sources})
        set(scope PUBLIC)
    else()
        add_library(${name} INTERFACE)
        set(scope INTERFACE)
    endif()
    target_sources(${name} ${scope}
        FILE_SET interface TYPE HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${headers})
    target_link_libraries(${name} ${scope} quillet_options ${arg_LINK})
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${QUILLET_TESTS})
endfunction()
