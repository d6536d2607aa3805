# What every target of this project is compiled with.
add_library(KestruneOptions INTERFACE)
target_compile_options(KestruneOptions INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wconversion -Wno-sign-conversion)
target_compile_definitions(KestruneOptions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(KESTRUNE_SANITIZE)
    add_compile_options(-fsanitize=${KESTRUNE_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KESTRUNE_SANITIZE})
endif()

# Relocations are read at each start; packed, they take a hundredth of the memory.
include(CheckLinkerFlag)
check_linker_flag(CXX -Wl,-z,pack-relative-relocs KESTRUNE_PACKS_RELOCATIONS)
if(KESTRUNE_PACKS_RELOCATIONS)
    add_link_options(-Wl,-z,pack-relative-relocs)
endif()

# A static library of one layer: kestrune_layer(NAME source...). Link what the layer may see afterwards.
function(kestrune_layer name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PRIVATE KestruneOptions)
endfunction()
