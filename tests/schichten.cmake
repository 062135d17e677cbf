# Fails when an include points against the order of the layers, or when a file below the Qt
# faces includes a Qt header. The order, lowest first:
#   core < records < start < engine, transfer < screen, panels, reports < installation
#        < druck < gui, cli
# The year change works on the store alone, so the menu and the panel that drive it stand
# above it.
# A file may include its own folder and any lower one; folders of one level are strangers to
# each other. The printing library druck stands beside the window, below the two programs
# that link it. Call with -DQUELLEN=<the src folder>.
set(rang_core 0)
set(rang_records 1)
set(rang_start 2)
set(rang_engine 3)
set(rang_screen 4)
set(rang_panels 4)
set(rang_reports 4)
set(rang_transfer 3)
set(rang_installation 5)
set(rang_druck 6)
set(rang_gui 7)
set(rang_cli 7)
# Up to this rank a file belongs to the core, which has no Qt.
set(kernrang 5)

file(GLOB_RECURSE dateien RELATIVE ${QUELLEN} ${QUELLEN}/*.h ${QUELLEN}/*.cpp)
list(SORT dateien)
set(fehler "")
foreach(datei ${dateien})
    string(REGEX MATCH "^[^/]+" ordner "${datei}")
    if(NOT DEFINED rang_${ordner})
        if(NOT datei MATCHES "/")
            continue() # a file right in src/ belongs to no layer
        endif()
        string(APPEND fehler "\n${QUELLEN}/${datei}: der Ordner ${ordner} hat keinen Platz in der Schichtenfolge")
        continue()
    endif()
    set(rang ${rang_${ordner}})
    file(READ ${QUELLEN}/${datei} inhalt)
    # Make the text a list of lines that survives semicolons and brackets.
    string(REPLACE ";" "," inhalt "${inhalt}")
    string(REPLACE "[" "(" inhalt "${inhalt}")
    string(REPLACE "]" ")" inhalt "${inhalt}")
    string(REPLACE "\n" ";" zeilen "${inhalt}")
    set(nummer 0)
    foreach(zeile IN LISTS zeilen)
        math(EXPR nummer "${nummer} + 1")
        if(zeile MATCHES "^[ \t]*#[ \t]*include[ \t]*\"([^/\"]+)/[^\"]*\"")
            set(ziel ${CMAKE_MATCH_1})
            if(NOT DEFINED rang_${ziel})
                continue()
            endif()
            if(NOT ziel STREQUAL ordner AND NOT rang_${ziel} LESS rang)
                string(APPEND fehler "\n${QUELLEN}/${datei}:${nummer}: ${ordner} bindet ${ziel} ein, das nicht darunter liegt: ${zeile}")
            endif()
        elseif(zeile MATCHES "^[ \t]*#[ \t]*include[ \t]*<Q" AND NOT rang GREATER kernrang)
            string(APPEND fehler "\n${QUELLEN}/${datei}:${nummer}: Qt im Kern: ${zeile}")
        endif()
    endforeach()
endforeach()
if(fehler)
    # One unwrapped line per offence, so an editor can jump to it.
    message(NOTICE "Einbindungen gegen die Schichtenfolge:${fehler}")
    message(FATAL_ERROR "Die Schichtenfolge ist verletzt.")
endif()
list(LENGTH dateien anzahl)
message(STATUS "Schichtenfolge eingehalten: ${anzahl} Dateien unter ${QUELLEN}")
