# kestrune_wayland_protocol(TARGET FILE.xml): what a client needs to speak the protocol described in the file: the header
# FILE-protocol.h, which the target alone sees, and the tables behind it.
pkg_get_variable(KESTRUNE_WAYLAND_SCANNER wayland-scanner wayland_scanner)

function(kestrune_wayland_protocol target description)
    get_filename_component(name ${description} NAME_WE)
    get_filename_component(description ${description} ABSOLUTE)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}-protocol)
    file(MAKE_DIRECTORY ${folder})
    foreach(made IN ITEMS client-header:${name}-protocol.h private-code:${name}-protocol.c)
        string(REPLACE ":" ";" made ${made})
        list(GET made 0 kind)
        list(GET made 1 file)
        add_custom_command(OUTPUT ${folder}/${file} DEPENDS ${description} VERBATIM
            COMMAND ${KESTRUNE_WAYLAND_SCANNER} ${kind} ${description} ${folder}/${file})
    endforeach()
    # Of its own, since what is made does not keep to the project's warnings.
    add_library(${target}Protocol STATIC ${folder}/${name}-protocol.c ${folder}/${name}-protocol.h)
    set_target_properties(${target}Protocol PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
    target_include_directories(${target}Protocol SYSTEM INTERFACE ${folder})
    target_link_libraries(${target}Protocol PRIVATE PkgConfig::WAYLAND)
    target_link_libraries(${target} PRIVATE ${target}Protocol)
    add_dependencies(${target} ${target}Protocol)
endfunction()
