# cmake -D CMARK=... -D IN=manual.md -D TEMPLATE=... -D VERSION=... -D OUT=.../manual.html -P MakeManual.cmake:
# makes a page of Markdown. A link within it that leads nowhere, or a picture that is not beside it, is an error.
cmake_minimum_required(VERSION 3.21)

execute_process(COMMAND ${CMARK} --extension table ${IN} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)

# cmark-gfm gives headings no names that a link could lead to. These are GitHub's.
while(body MATCHES "<h([1-6])>([^\n]*)</h[1-6]>")
  set(heading "${CMAKE_MATCH_0}")
  set(level ${CMAKE_MATCH_1})
  set(text "${CMAKE_MATCH_2}")
  string(TOLOWER "${text}" name)
  string(REGEX REPLACE "[^a-z0-9 -]" "" name "${name}")
  string(REPLACE " " "-" name "${name}")
  string(REPLACE "${heading}" "<h${level} id=\"${name}\">${text}</h${level}>" body "${body}")
endwhile()

string(REGEX MATCHALL "href=\"#[^\"]*\"" links "${body}")
foreach(link ${links})
  string(REGEX REPLACE "href=\"#(.*)\"" "\\1" name "${link}")
  string(FIND "${body}" " id=\"${name}\"" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${IN} has a link to #${name}, but no such heading")
  endif()
endforeach()

get_filename_component(folder ${OUT} DIRECTORY)
string(REGEX MATCHALL "src=\"[^\"]*\"" pictures "${body}")
foreach(picture ${pictures})
  string(REGEX REPLACE "src=\"(.*)\"" "\\1" file "${picture}")
  if(NOT EXISTS ${folder}/${file})
    message(FATAL_ERROR "${IN} shows ${file}, which is not in ${folder}")
  endif()
endforeach()

file(READ ${TEMPLATE} page)
string(REPLACE "@VERSION@" "${VERSION}" page "${page}")
string(REPLACE "@BODY@" "${body}" page "${page}")
file(WRITE ${OUT} "${page}")
