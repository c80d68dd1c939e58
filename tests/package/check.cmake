# Installs the build into a fresh prefix, then configures, builds and runs the consumer against it.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -S ${SOURCE}/tests/package -B ${WORK}/build -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/prefix -DCMAKE_C_FLAGS=${FLAGS} -DCMAKE_CXX_FLAGS=${FLAGS}
    -DHOSTS=${SOURCE}/examples/hosts)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer ${WORK}/chart.wrl)
foreach(file chart.wrl VR_GRAPH.wrl build/VR_UI.wrl prefix/share/orvane/protos/VR_NAV.wrl)
  if(NOT EXISTS ${WORK}/${file})
    message(FATAL_ERROR "the installed package did not make ${file}")
  endif()
endforeach()
# The installed program finds its library wherever the prefix is moved.
file(RENAME ${WORK}/prefix ${WORK}/moved)
if(EXISTS ${WORK}/moved/bin/orvane)
  run(${WORK}/moved/bin/orvane protos ${WORK}/protos)
endif()
