# cmake -D IN=... -D OUT=... -D QT=6 -P AdoptPagesEarly.cmake: puts the pages of a generated form's scroll areas
# and tabs into their place as soon as they are made.
#
# The form compiler fills a page first and gives it to its scroll area or tabs then. At that moment Qt
# works out the look of all on it anew and reads the images of the step buttons again, page by page: a
# quarter of all that the program's start executes. An empty page costs nothing.

file(READ "${IN}" form)

set(adoptions "        [A-Za-z0-9_]+->(setWidget|addTab)\\(([A-Za-z0-9_]+)[^\n]*\n")
set(filled "")
while(form MATCHES "${adoptions}")
  set(adoption "${CMAKE_MATCH_0}")
  set(page ${CMAKE_MATCH_2})
  # Qt 5's compiler makes a QString of the name, Qt 6's does not.
  string(REGEX MATCH "        ${page}->setObjectName\\((QString::fromUtf8\\()?\"${page}\"\\)+;\n" named "${form}")
  if(NOT named)
    message(FATAL_ERROR "${IN} does not name ${page} where it makes it")
  endif()
  string(REPLACE "${adoption}" "" form "${form}")
  string(REPLACE "->" "-->" held "${adoption}") # so that it is not found again
  string(REPLACE "${named}" "${named}${held}" form "${form}")
endwhile()
string(REPLACE "-->" "->" form "${form}")

# Without its fourth number Qt 5 draws such a colour opaque, Qt 6 black.
if(QT GREATER 5)
  string(REGEX REPLACE "rgba\\(([0-9]+,[0-9]+,[0-9]+)\\)" "rgba(\\1,255)" form "${form}")
endif()
file(WRITE "${OUT}" "${form}")
