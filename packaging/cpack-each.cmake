# Read by CPack before each of its generators.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(CPACK_STRIP_FILES ON) # the Debian package has its symbols taken away, and keeps them apart
endif()
