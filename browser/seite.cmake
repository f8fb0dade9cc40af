# Das Spiel als WebAssembly; browser/werkzeug/packen macht daraus, aus browser/seite und dem Mitgelieferten die Seite.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs") # Debians acorn
file(GLOB BROWSER_QUELLEN CONFIGURE_DEPENDS browser/*.cpp)
add_executable(velmo ${BROWSER_QUELLEN})
target_link_libraries(velmo PRIVATE spiel)
set_target_properties(velmo PROPERTIES LINK_DEPENDS ${CMAKE_SOURCE_DIR}/browser/Brücke.js)
# Gewartet wird an einer Stelle: seite_ruhe legt die Aufrufe beiseite, bis die Seite weckt.
target_link_options(velmo PRIVATE -O2 -sASYNCIFY -sASYNCIFY_IMPORTS=seite_ruhe -sASYNCIFY_STACK_SIZE=65536
                    --js-library ${CMAKE_SOURCE_DIR}/browser/Brücke.js -sMODULARIZE -sEXPORT_ES6 -sENVIRONMENT=web
                    -sALLOW_MEMORY_GROWTH -sINVOKE_RUN=0 -sEXPORTED_RUNTIME_METHODS=FS,callMain
                    -sEXPORTED_FUNCTIONS=_main,_malloc)

# Der Dauerlauf läuft in node; was er braucht, bindet dauerlauf_vor.js ein.
target_link_options(dauerlauf PRIVATE -O2 -lnodefs.js --pre-js ${CMAKE_SOURCE_DIR}/tests/browser/dauerlauf_vor.js
                    -sENVIRONMENT=node -sALLOW_MEMORY_GROWTH -sEXIT_RUNTIME)
set_target_properties(dauerlauf PROPERTIES LINK_DEPENDS ${CMAKE_SOURCE_DIR}/tests/browser/dauerlauf_vor.js)
set_target_properties(pruefstand affe tafeln PROPERTIES EXCLUDE_FROM_ALL ON)
