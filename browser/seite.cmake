# Die Seite: das Spiel als WebAssembly, daneben die Dateien aus browser/seite, alles in build-browser/seite. Bilder, Töne,
# Film und Schriften legt der Aufruf browser/bauen dazu.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs") # Debians acorn
set(SEITE ${CMAKE_BINARY_DIR}/seite)
file(GLOB BROWSER_QUELLEN CONFIGURE_DEPENDS browser/*.cpp)
add_executable(velmo ${BROWSER_QUELLEN})
target_link_libraries(velmo PRIVATE spiel)
set_target_properties(velmo PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${SEITE}
                                       LINK_DEPENDS ${CMAKE_SOURCE_DIR}/browser/Brücke.js)
# Gewartet wird an einer Stelle: seite_ruhe legt die Aufrufe beiseite, bis die Seite weckt.
target_link_options(velmo PRIVATE -O2 -sASYNCIFY -sASYNCIFY_IMPORTS=seite_ruhe -sASYNCIFY_STACK_SIZE=65536
                    --js-library ${CMAKE_SOURCE_DIR}/browser/Brücke.js -sMODULARIZE -sEXPORT_ES6 -sENVIRONMENT=web
                    -sALLOW_MEMORY_GROWTH -sINVOKE_RUN=0 -sEXPORTED_RUNTIME_METHODS=FS,callMain
                    -sEXPORTED_FUNCTIONS=_main,_malloc)

file(GLOB SEITENDATEIEN CONFIGURE_DEPENDS browser/seite/*)
foreach(Datei ${SEITENDATEIEN})
    get_filename_component(Name ${Datei} NAME)
    add_custom_command(OUTPUT ${SEITE}/${Name} COMMAND ${CMAKE_COMMAND} -E copy ${Datei} ${SEITE}/${Name}
                       DEPENDS ${Datei})
    list(APPEND SEITENZIELE ${SEITE}/${Name})
endforeach()
add_custom_target(seite ALL DEPENDS ${SEITENZIELE})

# Der Dauerlauf läuft in node und sieht die Dateien des Rechners.
target_link_options(dauerlauf PRIVATE -O2 -sNODERAWFS -sENVIRONMENT=node -sALLOW_MEMORY_GROWTH -sEXIT_RUNTIME)
set_target_properties(pruefstand affe tafeln PROPERTIES EXCLUDE_FROM_ALL ON)
