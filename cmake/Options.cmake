# A newer compiler knows more warnings; they are for the checks to fail on, not for who wants to use the program.
option(KESTRUNE_WARNINGS_AS_ERRORS "Fail on a warning" OFF)

# What every target of this project is compiled with.
add_library(KestruneOptions INTERFACE)
target_compile_options(KestruneOptions INTERFACE
    -Wall -Wextra -Wpedantic $<$<BOOL:${KESTRUNE_WARNINGS_AS_ERRORS}>:-Werror> -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wconversion -Wno-sign-conversion
    # A source within a large unit is no header, whatever the compiler takes it for.
    $<$<AND:$<BOOL:${CMAKE_UNITY_BUILD}>,$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
target_compile_definitions(KestruneOptions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(KESTRUNE_SANITIZE)
    add_compile_options(-fsanitize=${KESTRUNE_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KESTRUNE_SANITIZE})
endif()

# What makes a fault hard to use: guarded stacks, checked bounds of containers and buffers, nothing left over in automatic
# variables, jumps to their targets only, and tables of functions that nothing can write.
include(CheckCXXCompilerFlag)
if(CMAKE_BUILD_TYPE MATCHES "Rel" AND NOT KESTRUNE_FUZZ)
    foreach(option fstack-protector-strong fstack-clash-protection fcf-protection ftrivial-auto-var-init=zero)
        string(MAKE_C_IDENTIFIER KESTRUNE_HAS_${option} known)
        check_cxx_compiler_flag(-${option} ${known})
        if(${known})
            add_compile_options(-${option})
        endif()
    endforeach()
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

# Relocations are read at each start; packed, they take a hundredth of the memory.
include(CheckLinkerFlag)
check_linker_flag(CXX -Wl,-z,pack-relative-relocs KESTRUNE_PACKS_RELOCATIONS)
if(KESTRUNE_PACKS_RELOCATIONS)
    add_link_options(-Wl,-z,pack-relative-relocs)
endif()

# kestrune_unite(TARGET SOURCES COUNT): puts COUNT each of the sources listed in SOURCES into one, for options of their
# own, with which CMake leaves sources out of its unity builds. SOURCES names the new ones afterwards.
function(kestrune_unite target sources count)
    set(united)
    set(lines)
    set(left ${${sources}})
    while(left)
        list(SUBLIST left 0 ${count} some)
        list(REMOVE_ITEM left ${some})
        list(LENGTH united number)
        list(TRANSFORM some PREPEND "#include \"" OUTPUT_VARIABLE lines)
        list(TRANSFORM lines APPEND "\"")
        list(JOIN lines "\n" lines)
        set(file ${CMAKE_CURRENT_BINARY_DIR}/united_${number}.cpp)
        file(CONFIGURE OUTPUT ${file} CONTENT "${lines}\n" @ONLY)
        list(APPEND united ${file})
    endwhile()
    set_source_files_properties(${${sources}} PROPERTIES HEADER_FILE_ONLY ON)
    target_sources(${target} PRIVATE ${united})
    set(${sources} ${united} PARENT_SCOPE)
endfunction()
