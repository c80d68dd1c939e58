# Writes a C++ source that holds the PROTO files as text, so that the library can write them anywhere:
# cmake -D OUTPUT=... -D FOLDER=... -P EmbedProtos.cmake
#
# A string literal stays below 16 KB, which is what some compilers take at most.
set(PIECE 15000)

set(source "#include \"orvane/scene/ProtoFiles.h\"\n\nnamespace orvane {\n\n")
string(APPEND source "const std::array<ProtoFile, 3>& ProtoFiles() {\n")
string(APPEND source "  static const std::array<ProtoFile, 3> files = {{\n")
foreach(name VR_GRAPH VR_NAV VR_UI)
  file(READ ${FOLDER}/${name}.wrl text)
  string(LENGTH "${text}" length)
  string(APPEND source "      {\"${name}.wrl\",\n       std::string()")
  set(start 0)
  while(start LESS length)
    string(SUBSTRING "${text}" ${start} ${PIECE} piece)
    string(APPEND source ".append(R\"wrl(${piece})wrl\")")
    math(EXPR start "${start} + ${PIECE}")
  endwhile()
  string(APPEND source "},\n")
endforeach()
string(APPEND source "  }};\n  return files;\n}\n\n}  // namespace orvane\n")
file(WRITE ${OUTPUT} "${source}")
