# zelvor_windows_program(<target> <description>): what Windows looks for in a program itself: icon, version and manifest,
# which says among others that its code page is UTF-8 and that it knows long paths. Nothing on other systems.
function(zelvor_windows_program target description)
  if(NOT WIN32)
    return()
  endif()
  enable_language(RC)
  set(ZELVOR_PROGRAM ${target})
  set(ZELVOR_DESCRIPTION ${description})
  set(parts ${CMAKE_SOURCE_DIR}/resources/windows)
  set(made ${CMAKE_BINARY_DIR}/windows)
  configure_file(${parts}/program.manifest.in ${made}/${target}.manifest @ONLY)
  set(ZELVOR_ICON_LINE "101 ICON \"${parts}/zelvor.ico\"")
  if(MSVC) # whose linker puts manifests in
    set(ZELVOR_MANIFEST_LINE "")
    target_sources(${target} PRIVATE ${made}/${target}.manifest)
  else()
    set(ZELVOR_MANIFEST_LINE "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"${made}/${target}.manifest\"")
  endif()
  configure_file(${parts}/program.rc.in ${made}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${made}/${target}.rc)
  set_property(
    SOURCE ${made}/${target}.rc
    TARGET_DIRECTORY ${target}
    PROPERTY OBJECT_DEPENDS ${parts}/zelvor.ico ${made}/${target}.manifest)
endfunction()
