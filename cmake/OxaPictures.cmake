# Bitmaps and icons are drawn from their readable sources at build time.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(OXA_PICTURES_DIR ${CMAKE_BINARY_DIR}/pictures)
set(OXA_PICTURES_STAMP ${OXA_PICTURES_DIR}/made.stamp)
file(GLOB_RECURSE oxa_picture_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/pictures/* ${CMAKE_SOURCE_DIR}/siblings/*/resources/pictures/*
    ${CMAKE_SOURCE_DIR}/gallery/pictures/*)
add_custom_command(
    OUTPUT ${OXA_PICTURES_STAMP}
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/make_pictures.py ${OXA_PICTURES_DIR}
    COMMAND ${CMAKE_COMMAND} -E touch ${OXA_PICTURES_STAMP}
    DEPENDS ${CMAKE_SOURCE_DIR}/tools/make_pictures.py ${oxa_picture_sources}
    COMMENT "Drawing bitmaps and icons")
add_custom_target(oxa_pictures DEPENDS ${OXA_PICTURES_STAMP})

# Compiles a resource script into a module, behind the pictures that it names.
function(oxa_resources target script)
    if(NOT EXISTS ${script})
        return()
    endif()
    get_filename_component(folder ${script} DIRECTORY)
    target_sources(${target} PRIVATE ${script})
    file(GLOB_RECURSE neighbours CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.txt ${folder}/*.rc2 ${folder}/*.prompts)
    # Per directory: set_source_files_properties must name the directory of the target that compiles the file.
    set_source_files_properties(${script} TARGET_DIRECTORY ${target} PROPERTIES
        OBJECT_DEPENDS "${OXA_PICTURES_STAMP};${neighbours}"
        INCLUDE_DIRECTORIES "${folder};${OXA_PICTURES_DIR}")
    add_dependencies(${target} oxa_pictures)
endfunction()
