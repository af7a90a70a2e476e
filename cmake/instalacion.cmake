# The installation tree: program files in Duct, the shared configuration in Config beside it. A build lays it out below
# RAIZ as it goes, `cmake --install` lays out the same tree below its prefix.

function(duktores_programa objetivo)
  set_target_properties(${objetivo} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${RAIZ}/Duct)
  install(TARGETS ${objetivo} RUNTIME DESTINATION Duct)
endfunction()

# A file of the source tree goes to `carpeta` of the installation.
function(duktores_dato fichero carpeta)
  get_filename_component(nombre ${fichero} NAME)
  set(destino ${RAIZ}/${carpeta}/${nombre})
  add_custom_command(
    OUTPUT ${destino}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${RAIZ}/${carpeta}
    COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${fichero} ${destino}
    DEPENDS ${CMAKE_SOURCE_DIR}/${fichero}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY duktores_datos ${destino})
  install(FILES ${fichero} DESTINATION ${carpeta})
endfunction()

# The target that lays out all data files.
function(duktores_datos)
  get_property(ficheros GLOBAL PROPERTY duktores_datos)
  add_custom_target(datos ALL DEPENDS ${ficheros})
endfunction()
