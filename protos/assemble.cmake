# Writes a PROTO file as it is deployed, out of its sources:
# cmake -D INPUT=VR_UI.wrl.in -D OUTPUT=VR_UI.wrl -P assemble.cmake
#
# A line "# include FILE" (in a script "// include FILE") stands for the text of that file, and
# url "NAME.js" for the script itself. Files are named as seen from the file that names them.

# Puts blanks before each line of a text that is not empty.
function(indent result text blanks)
  string(REGEX REPLACE "\n([^\n])" "\n${blanks}\\1" text "\n${text}")
  string(SUBSTRING "${text}" 1 -1 text)
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# The text of a file, with all that it includes.
function(expand result file)
  cmake_path(GET file PARENT_PATH folder)
  file(READ ${file} text)
  while(text MATCHES "\n( *)(#|//) include ([A-Za-z0-9_./]+)\n")
    set(line "${CMAKE_MATCH_0}")
    set(blanks "${CMAKE_MATCH_1}")
    expand(part ${folder}/${CMAKE_MATCH_3})
    indent(part "${part}" "${blanks}")
    string(REPLACE "${line}" "\n${part}" text "${text}")
  endwhile()
  while(text MATCHES "\n( *)url \"([A-Za-z0-9_]+\\.js)\"\n")
    set(line "${CMAKE_MATCH_0}")
    set(blanks "${CMAKE_MATCH_1}")
    expand(script ${folder}/${CMAKE_MATCH_2})
    string(REPLACE "\\" "\\\\" script "${script}")
    string(REPLACE "\"" "\\\"" script "${script}")
    string(STRIP "${script}" script)
    indent(script "${script}" "${blanks}  ")
    string(REPLACE "${line}" "\n${blanks}url \"javascript:\n${script}\"\n" text "${text}")
  endwhile()
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

expand(world ${INPUT})
file(WRITE ${OUTPUT} "${world}")
