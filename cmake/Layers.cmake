# The layers of the program and what each may see. A layer is a static library with an include root of its own, which
# holds links to its headers and to no others: an include of what it does not link finds nothing.
#
#   kestrune_layer(NAME file... [USES library...])
#
# USES names foreign libraries, as in KESTRUNE_FOREIGN; the headers of all the others are walled off from the layer,
# though they lie in the system's include folder. What a layer sees of this project, it links with
# target_link_libraries afterwards.
set(KESTRUNE_FOREIGN XCB WAYLAND DBUS SQLITE ICAL SODIUM CANBERRA)
foreach(library IN LISTS KESTRUNE_FOREIGN)
    set(KESTRUNE_TARGET_${library} PkgConfig::${library})
endforeach()
set(KESTRUNE_TARGET_DBUS Qt6::DBus)
set(KESTRUNE_HEADERS_XCB xcb/*.h)
set(KESTRUNE_HEADERS_WAYLAND wayland-*.h)
set(KESTRUNE_HEADERS_DBUS QtDBus/*)
set(KESTRUNE_HEADERS_SQLITE sqlite3.h)
set(KESTRUNE_HEADERS_ICAL libical/*.h)
set(KESTRUNE_HEADERS_SODIUM sodium.h)
set(KESTRUNE_HEADERS_CANBERRA canberra.h)

# A folder that stands before the system's, in which each header of the library is an error.
function(kestrune_build_wall library)
    set(wall ${PROJECT_BINARY_DIR}/walls/${library})
    foreach(prefix IN ITEMS /usr/include ${${library}_INCLUDE_DIRS} ${Qt6DBus_INCLUDE_DIRS})
        foreach(pattern IN LISTS KESTRUNE_HEADERS_${library})
            file(GLOB headers RELATIVE ${prefix} ${prefix}/${pattern})
            foreach(header IN LISTS headers)
                if(NOT EXISTS ${wall}/${header})
                    file(WRITE ${wall}/${header} "#error \"this layer does not use ${header}\"\n")
                endif()
            endforeach()
        endforeach()
    endforeach()
endfunction()

foreach(library IN LISTS KESTRUNE_FOREIGN)
    kestrune_build_wall(${library})
endforeach()

# Links the headers among the files into the root of the layer, under the names by which they are included: from
# Sources/ on, or from the top folder where they lie elsewhere.
function(kestrune_fill_root name)
    set(root ${PROJECT_BINARY_DIR}/include/${name})
    foreach(file IN LISTS ARGN)
        if(NOT file MATCHES "\\.h$")
            continue()
        endif()
        get_filename_component(path ${file} ABSOLUTE)
        file(RELATIVE_PATH included ${PROJECT_SOURCE_DIR} ${path})
        string(REGEX REPLACE "^Sources/" "" included ${included})
        get_filename_component(folder ${root}/${included} DIRECTORY)
        file(MAKE_DIRECTORY ${folder})
        file(CREATE_LINK ${path} ${root}/${included} SYMBOLIC)
    endforeach()
    target_include_directories(${name} PUBLIC ${root})
endfunction()

function(kestrune_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "USES")
    add_library(${name} STATIC ${layer_UNPARSED_ARGUMENTS})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(${name} PRIVATE KestruneOptions)
    # What a header was linked for may have moved away since.
    file(REMOVE_RECURSE ${PROJECT_BINARY_DIR}/include/${name})
    kestrune_fill_root(${name} ${layer_UNPARSED_ARGUMENTS})
    foreach(library IN LISTS KESTRUNE_FOREIGN)
        if(library IN_LIST layer_USES)
            target_link_libraries(${name} PRIVATE ${KESTRUNE_TARGET_${library}})
        else()
            target_include_directories(${name} BEFORE PRIVATE ${PROJECT_BINARY_DIR}/walls/${library})
        endif()
    endforeach()
endfunction()

# kestrune_room([MODEL file...] [VIEW file...] [QML file...]), in a room below Sources/NotchKit: what of it goes into
# the core, what into the views.
function(kestrune_room)
    cmake_parse_arguments(PARSE_ARGV 0 room "" "" "MODEL;VIEW;QML")
    foreach(kind IN ITEMS MODEL VIEW QML)
        list(TRANSFORM room_${kind} PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
        set_property(GLOBAL APPEND PROPERTY KESTRUNE_${kind}_FILES ${room_${kind}})
    endforeach()
    set_property(GLOBAL APPEND PROPERTY KESTRUNE_ROOMS ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()
