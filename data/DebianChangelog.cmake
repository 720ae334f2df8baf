# cmake -DINPUT=CHANGELOG.md -DOUTPUT=changelog -DPACKAGE=name -DVERSION=x.y.z
#       -DMAINTAINER="Name <address>" -P DebianChangelog.cmake
# Writes CHANGELOG.md in the form of a Debian changelog, which is what Debian
# wants in usr/share/doc/<package>/changelog.gz. Each "## VERSION (YYYY-MM-DD)"
# heading starts an entry, each "- " item becomes a "  * " line and the
# item's indented lines follow it; text above the first heading is left out.
# The newest entry must be the version being built.
file(READ "${INPUT}" text)
string(REPLACE "`" "" text "${text}")

set(month_names Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
set(day_names Sun Mon Tue Wed Thu Fri Sat)
set(month_offsets 0 3 2 5 0 3 5 1 4 6 2 4)

set(out "")
set(trailer "")
set(newest "")
set(line_number 0)
while(NOT text STREQUAL "")
  string(FIND "${text}" "\n" end)
  if(end EQUAL -1)
    set(line "${text}")
    set(text "")
  else()
    string(SUBSTRING "${text}" 0 ${end} line)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${text}" ${end} -1 text)
  endif()
  math(EXPR line_number "${line_number} + 1")

  if(line MATCHES "^## ([^ ]+) \\(([0-9][0-9][0-9][0-9])-([0-9][0-9])-([0-9][0-9])\\)$")
    set(version "${CMAKE_MATCH_1}")
    set(year "${CMAKE_MATCH_2}")
    set(day_of_month "${CMAKE_MATCH_4}")
    string(REGEX REPLACE "^0" "" month "${CMAKE_MATCH_3}")
    string(REGEX REPLACE "^0" "" day "${day_of_month}")
    # The day of the week (Sakamoto's method; 0 is Sunday).
    set(y ${year})
    if(month LESS 3)
      math(EXPR y "${y} - 1")
    endif()
    math(EXPR month_index "${month} - 1")
    list(GET month_offsets ${month_index} offset)
    math(EXPR weekday "(${y} + ${y} / 4 - ${y} / 100 + ${y} / 400 + ${offset} + ${day}) % 7")
    list(GET day_names ${weekday} day_name)
    list(GET month_names ${month_index} month_name)

    if(newest STREQUAL "")
      set(newest "${version}")
    else()
      string(APPEND out "${trailer}\n")
    endif()
    string(APPEND out "${PACKAGE} (${version}) unstable; urgency=medium\n\n")
    set(trailer "\n -- ${MAINTAINER}  ${day_name}, ${day_of_month} ${month_name} ${year} 00:00:00 +0000\n")
  elseif(newest STREQUAL "" OR line STREQUAL "")
    # the title and introduction, and the blank lines
  elseif(line MATCHES "^- (.*)$")
    string(APPEND out "  * ${CMAKE_MATCH_1}\n")
  elseif(line MATCHES "^  +(.*)$")
    string(APPEND out "    ${CMAKE_MATCH_1}\n")
  else()
    message(FATAL_ERROR "${INPUT}:${line_number}: neither a release heading nor a \"- \" item: ${line}")
  endif()
endwhile()

if(NOT newest STREQUAL "${VERSION}")
  message(FATAL_ERROR "${INPUT}: the newest release is \"${newest}\", but this is version ${VERSION}")
endif()
file(WRITE "${OUTPUT}" "${out}${trailer}")
