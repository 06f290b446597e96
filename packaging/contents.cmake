# SPDX-License-Identifier: MIT
#
# The components of each package. cpack reads this file once per package.

if(CPACK_GENERATOR STREQUAL "DEB")
  set(components program library c shared debian)
elseif(CPACK_GENERATOR STREQUAL "ZIP")
  set(components program c shared)
else()
  set(components static shared plain)
endif()

list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
foreach(component ${components})
  list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${build_folder}" "${CPACK_PACKAGE_NAME}" ${component} /)
endforeach()
