# Plays session scripts (one, or several with commas between), each in a fresh folder that holds
# the raw files and the examples.
#   cmake -DDRIVE=... -DSCRIPT=... -DFOLDER=... -DFILES=... -DEXAMPLES=...
#         [-DFAILS=<regex>] [-DPRINTS=<file>] [-DLOCALE=<name>] -P play.cmake
#         [-DFIRST=<command>|<command>...]
# FIRST plays these commands before the script. With PRINTS the output must be what the file holds. With FAILS the script must end with exit code 1
# and a last line that matches. With LOCALE it runs under that locale; where the machine lacks it,
# the test says so and is skipped.
cmake_minimum_required(VERSION 3.25)

if(LOCALE)
  execute_process(COMMAND locale -a OUTPUT_VARIABLE known)
  string(TOLOWER "${known}" known)
  string(REPLACE "utf-8" "utf8" known "${known}")
  string(TOLOWER "${LOCALE}" wanted)
  string(REPLACE "utf-8" "utf8" wanted "${wanted}")
  if(NOT "\n${known}" MATCHES "\n${wanted}\n")
    message("SKIPPED: this machine has no locale ${LOCALE}")
    return()
  endif()
  set(ENV{LC_ALL} "${LOCALE}")
endif()
set(ENV{QT_QPA_PLATFORM} offscreen)

# Files beyond what is worth keeping in the tree.
function(make_large_files folder)
  string(REPEAT "1.5\r\n2.5\r\n" 1000 lines)
  file(WRITE "${folder}/lines_2000.vkr" "${lines}")
  file(WRITE "${folder}/lines_2001.vkr" "${lines}3.5\r\n")
  file(WRITE "${folder}/lines_2001_bad.vkr" "${lines}0\r\n")
  string(REPEAT "n" 146 long)
  configure_file("${EXAMPLES}/welding_fume.vkr" "${folder}/${long}.vkr" COPYONLY)
endfunction()

function(play script)
  get_filename_component(name "${script}" NAME_WE)
  set(folder "${FOLDER}/${name}")
  file(REMOVE_RECURSE "${folder}")
  file(MAKE_DIRECTORY "${folder}/a_folder.vkr" "${folder}/pictures")
  file(GLOB files "${FILES}/*" "${EXAMPLES}/*.vkr")
  file(COPY ${files} DESTINATION "${folder}")
  make_large_files("${folder}")
  if(FIRST)
    string(REPLACE "|" "\n" first "${FIRST}")
    file(READ "${script}" rest)
    set(script "${folder}/${name}.session")
    file(WRITE "${script}" "${first}\n${rest}")
  endif()
  execute_process(COMMAND "${DRIVE}" "${script}" WORKING_DIRECTORY "${folder}"
    OUTPUT_VARIABLE output RESULT_VARIABLE code)
  message("${output}")
  if(FAILS)
    if(NOT code EQUAL 1 OR NOT output MATCHES "${FAILS}\n*$")
      message(FATAL_ERROR "${name}: exit code ${code}; wanted 1 and ${FAILS}")
    endif()
  elseif(NOT code EQUAL 0)
    message(FATAL_ERROR "${name}: exit code ${code}")
  endif()
  if(PRINTS)
    file(READ "${PRINTS}" wanted)
    if(NOT output STREQUAL wanted)
      message(FATAL_ERROR "${name}: the output differs from ${PRINTS}")
    endif()
  endif()
endfunction()

string(REPLACE "," ";" scripts "${SCRIPT}")
foreach(script IN LISTS scripts)
  play("${script}")
endforeach()
