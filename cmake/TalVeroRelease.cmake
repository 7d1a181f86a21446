# What packages tell of a release, from the two places that hold it: project(VERSION) and CHANGELOG.md, whose newest
# section bears its day or "unreleased". tests/house holds the two together.
#
#   TALVERO_SOURCE_DATE  seconds since 1970 for everything that bears a time, so that the same sources give the
#                        same bytes: SOURCE_DATE_EPOCH of the environment, else the commit's time, else the day
#                        in CHANGELOG.md, else that file's own time
#   TALVERO_DAY          the release's day, YYYY-MM-DD; that of TALVERO_SOURCE_DATE while it is unreleased
#   TALVERO_WHO          who has made it, as packages want it
set(TALVERO_CONTACT support@talvero.example)
set(TALVERO_WHO "The TAL-VERO Connect developers <${TALVERO_CONTACT}>")
set(talvero_changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${talvero_changelog})

# talvero_told(VARIABLE FORM): the changelog in a form of linux/changelog.awk.
function(talvero_told variable form)
  execute_process(
    COMMAND awk -f ${PROJECT_SOURCE_DIR}/linux/changelog.awk -v form=${form} -v today=${TALVERO_TODAY}
            -v who=${TALVERO_WHO} ${talvero_changelog}
    OUTPUT_VARIABLE told OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} "${told}" PARENT_SCOPE)
endfunction()

# talvero_commit_time(VARIABLE): of the commit that is checked out; empty where the tree is not under git.
function(talvero_commit_time variable)
  set(time "")
  if(EXISTS ${PROJECT_SOURCE_DIR}/.git)
    execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  endif()
  set(${variable} "${time}" PARENT_SCOPE)
endfunction()

# talvero_source_date(VARIABLE)
function(talvero_source_date variable)
  set(date "$ENV{SOURCE_DATE_EPOCH}")
  if(NOT date)
    talvero_commit_time(date)
  endif()
  if(NOT date)
    talvero_told(date epoch)
  endif()
  if(NOT date)
    file(TIMESTAMP ${talvero_changelog} date "%s" UTC)
  endif()
  set(${variable} ${date} PARENT_SCOPE)
endfunction()

talvero_source_date(TALVERO_SOURCE_DATE)
set(talvero_kept_date "$ENV{SOURCE_DATE_EPOCH}")
set(ENV{SOURCE_DATE_EPOCH} ${TALVERO_SOURCE_DATE}) # what string(TIMESTAMP) reads as the time of today
string(TIMESTAMP TALVERO_TODAY "%Y-%m-%d" UTC)
set(ENV{SOURCE_DATE_EPOCH} "${talvero_kept_date}")
talvero_told(TALVERO_DAY day)
