# Pictures are kept as SVG and become PNG when the project is built.

find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# tevrane_pictures(VARIABLE NAME PREFIX FOLDER PICTURES...): renders the SVG sources of FOLDER and lists
# them in the resource file NAME.qrc below PREFIX, whose path it puts into VARIABLE. A picture is written
# as name:width or name:width:scales. With scales above 1 it is there twice (name@2x.png), three times
# ... as wide too: Qt takes these on finer screens.
function(tevrane_pictures variable name prefix folder)
  set(rendered ${CMAKE_CURRENT_BINARY_DIR}/${name})
  file(MAKE_DIRECTORY ${rendered})
  set(entries "")
  foreach(picture IN LISTS ARGN)
    string(REPLACE ":" ";" fields ${picture})
    list(GET fields 0 stem)
    list(GET fields 1 width)
    list(LENGTH fields count)
    set(scales 1)
    if(count GREATER 2)
      list(GET fields 2 scales)
    endif()
    foreach(scale RANGE 1 ${scales})
      set(file ${stem}.png)
      if(scale GREATER 1)
        set(file ${stem}@${scale}x.png)
      endif()
      math(EXPR pixels "${width} * ${scale}")
      add_custom_command(
        OUTPUT ${rendered}/${file}
        COMMAND ${RSVG_CONVERT} --width ${pixels} --output ${rendered}/${file} ${folder}/${stem}.svg
        DEPENDS ${folder}/${stem}.svg
        VERBATIM)
      string(APPEND entries "    <file alias=\"${file}\">${name}/${file}</file>\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${name}.qrc @ONLY CONTENT
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n  <qresource prefix=\"@prefix@\">\n@entries@  </qresource>\n</RCC>\n")
  set(${variable} ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc PARENT_SCOPE)
endfunction()
