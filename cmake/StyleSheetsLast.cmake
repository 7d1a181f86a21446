# cmake -D IN=... -D OUT=... -P StyleSheetsLast.cmake: moves the style sheets of a generated form behind
# the making of its widgets.
#
# The form compiler gives each widget its sheet before the widget has its place. When a widget moves into
# another afterwards (a page into its tabs, the contents into their scroll area), Qt works out the look of
# all below it anew and reads the images of the step buttons again: a sixth of all that starting executes.
#
# The sheets of the window and of its central widget stay where they are: what lies in them inherits them.

file(READ "${IN}" form)

# take(LENGTH VARIABLE): moves so many characters from the front of the form into the variable.
macro(take length variable)
  string(SUBSTRING "${form}" 0 ${length} ${variable})
  string(SUBSTRING "${form}" ${length} -1 form)
endmacro()

# take_to(TEXT VARIABLE): the same, to the end of the text.
macro(take_to text variable)
  string(FIND "${form}" "${text}" at)
  string(LENGTH "${text}" length)
  math(EXPR length "${at} + ${length}")
  take(${length} ${variable})
endmacro()

set(call "->setStyleSheet(QString::fromUtf8(")
set(making "")
set(sheets "")
string(FIND "${form}" "${call}" at)
while(NOT at EQUAL -1)
  string(SUBSTRING "${form}" 0 ${at} before)
  string(FIND "${before}" "\n" line REVERSE)
  math(EXPR line "${line} + 1")
  take(${line} before)
  take_to("\"));\n" sheet)
  string(APPEND making "${before}")
  if(sheet MATCHES "^ *(MainWindow|InfoForm|depthGraph|centralwidget)->")
    string(APPEND making "${sheet}")
  else()
    string(APPEND sheets "${sheet}")
  endif()
  string(FIND "${form}" "${call}" at)
endwhile()

string(FIND "${form}" "        retranslateUi(" at)
if(at EQUAL -1)
  message(FATAL_ERROR "${IN} is no form that uic has made")
endif()
take(${at} rest)
file(WRITE "${OUT}" "${making}${rest}${sheets}${form}")
