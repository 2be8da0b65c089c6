# The texts of the windows in other languages. make translations brings translations/*.ts up to date with the code; the
# build compiles them into the program, where ":/translations/velara_de.qm" is one.
file(GLOB TRANSLATION_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/velara_*.ts)
set(MADE ${CMAKE_BINARY_DIR}/translations)
set(LIST "")
set(COMPILED "")
foreach(source ${TRANSLATION_SOURCES})
  get_filename_component(name ${source} NAME_WE)
  add_custom_command(OUTPUT ${MADE}/${name}.qm COMMAND Qt6::lrelease -silent ${source} -qm ${MADE}/${name}.qm DEPENDS ${source})
  list(APPEND COMPILED ${MADE}/${name}.qm)
  string(APPEND LIST "    <file>${name}.qm</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${MADE}/translations.qrc CONTENT
     "<RCC>\n  <qresource prefix=\"/translations\">\n@LIST@  </qresource>\n</RCC>\n" @ONLY)
add_custom_command(OUTPUT ${MADE}/translations.cpp
                   COMMAND Qt6::rcc --name translations -o ${MADE}/translations.cpp ${MADE}/translations.qrc
                   DEPENDS ${MADE}/translations.qrc ${COMPILED})
set(TRANSLATIONS ${MADE}/translations.cpp)

# velara-texts prints the rows of the tables; lupdate reads everything else in the code itself.
add_custom_target(translations
  COMMAND velara-texts ${MADE}/tables.cpp
  COMMAND Qt6::lupdate -silent -locations none -no-ui-lines -no-obsolete -I ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src
          ${MADE}/tables.cpp -ts ${TRANSLATION_SOURCES}
  VERBATIM)
