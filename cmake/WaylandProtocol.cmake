# kestrune_wayland_protocol(TARGET FILE.xml): what a client needs to speak the protocol described in the file, the header
# FILE-protocol.h and the tables behind it, for the target alone; and FILE-server-protocol.h for a server of the tests. It
# is made when the build is configured, as some checks read sources that nobody builds.
pkg_get_variable(KESTRUNE_WAYLAND_SCANNER wayland-scanner wayland_scanner)

function(kestrune_wayland_protocol target description)
    get_filename_component(name ${description} NAME_WE)
    get_filename_component(description ${description} ABSOLUTE)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}-protocol)
    file(MAKE_DIRECTORY ${folder})
    set(file_client-header ${folder}/${name}-protocol.h)
    set(file_private-code ${folder}/${name}-protocol.c)
    set(file_server-header ${folder}/${name}-server-protocol.h)
    foreach(kind IN ITEMS client-header private-code server-header)
        if(${description} IS_NEWER_THAN ${file_${kind}})
            execute_process(COMMAND ${KESTRUNE_WAYLAND_SCANNER} ${kind} ${description} ${file_${kind}}
                COMMAND_ERROR_IS_FATAL ANY)
        endif()
    endforeach()
    # A library of its own, since what is made does not keep to the project's warnings.
    add_library(${target}Protocol STATIC ${file_private-code})
    set_target_properties(${target}Protocol PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
    target_include_directories(${target}Protocol SYSTEM INTERFACE ${folder})
    target_link_libraries(${target}Protocol PRIVATE PkgConfig::WAYLAND)
    target_link_libraries(${target} PRIVATE ${target}Protocol)
endfunction()
