# Run by the install of the component "libraries": copies the libraries that PROGRAMS and the plugins
# of Qt need to lib/ and plugins/ beside the programs, with their licences. What every Linux with a
# display has stays out, and so does what must fit the kernel or the display of the machine: the C
# and C++ libraries, and the client libraries of the X server. Fontconfig and FreeType come along,
# since they only have to fit each other.
set(of_the_system
  "^ld-linux" "^libc\\.so" "^libm\\.so" "^libdl\\.so" "^libpthread\\.so" "^librt\\.so"
  "^libresolv\\.so" "^libstdc\\+\\+\\.so" "^libgcc_s\\.so" "^libtinfo\\.so"
  "^libX11\\.so" "^libX11-xcb\\.so" "^libxcb\\.so" "^libXau\\.so" "^libXdmcp\\.so")
# Windows, no windows for scripts, dead keys and input methods, and the one SVG of the style sheet.
set(plugins
  platforms/libqxcb.so platforms/libqoffscreen.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  iconengines/libqsvgicon.so imageformats/libqsvg.so)
# Wayland, where its package is installed.
set(wayland_plugins
  platforms/libqwayland-generic.so wayland-shell-integration/libxdg-shell.so
  wayland-decoration-client/libbradient.so)

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(modules)
if(qt_plugins)
  if(EXISTS "${qt_plugins}/platforms/libqwayland-generic.so")
    list(APPEND plugins ${wayland_plugins})
  endif()
  foreach(plugin ${plugins})
    get_filename_component(kind ${plugin} DIRECTORY)
    file(INSTALL "${qt_plugins}/${plugin}" DESTINATION "${folder}/plugins/${kind}")
    list(APPEND modules "${qt_plugins}/${plugin}")
  endforeach()
  file(WRITE "${folder}/qt.conf" "[Paths]\nPrefix = .\nPlugins = plugins\n")
endif()

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} MODULES ${modules}
  RESOLVED_DEPENDENCIES_VAR libraries UNRESOLVED_DEPENDENCIES_VAR missing
  PRE_EXCLUDE_REGEXES ${of_the_system})
if(missing)
  message(FATAL_ERROR "These libraries are not installed here: ${missing}")
endif()

# The packages that the copied files are from, under the name that dpkg knows the file by.
set(packages)
function(note_package file)
  string(REGEX REPLACE "^/usr/lib/" "/lib/" short "${file}")
  foreach(path "${file}" "${short}")
    execute_process(COMMAND dpkg-query -S "${path}" OUTPUT_VARIABLE owner ERROR_QUIET)
    if(owner)
      break()
    endif()
  endforeach()
  if(NOT owner)
    message(FATAL_ERROR "No package owns ${file}, so its licence is not known")
  endif()
  string(REGEX REPLACE ":.*" "" package "${owner}")
  list(APPEND packages "${package}")
  set(packages "${packages}" PARENT_SCOPE)
endfunction()

foreach(library ${libraries})
  get_filename_component(name "${library}" NAME)
  file(REAL_PATH "${library}" real)
  file(MAKE_DIRECTORY "${folder}/lib")
  file(COPY_FILE "${real}" "${folder}/lib/${name}")
  note_package("${real}")
endforeach()
foreach(module ${modules})
  note_package("${module}")
endforeach()
list(REMOVE_DUPLICATES packages)
list(SORT packages)

file(MAKE_DIRECTORY "${folder}/licences/common-licenses")
set(table "")
set(texts)
foreach(package ${packages})
  execute_process(COMMAND dpkg-query -W -f "\${source:Package} \${source:Version}\n" ${package}
    OUTPUT_VARIABLE source OUTPUT_STRIP_TRAILING_WHITESPACE)
  # The same package for two architectures prints two equal lines.
  string(REGEX REPLACE "\n.*" "" source "${source}")
  string(APPEND table "  ${package}, from ${source}\n")
  set(licence "/usr/share/doc/${package}/copyright")
  file(REAL_PATH "${licence}" licence)
  file(COPY_FILE "${licence}" "${folder}/licences/${package}.txt")
  file(STRINGS "${licence}" mentions REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "common-licenses/[A-Za-z]+(-[0-9]+(\\.[0-9]+)*)?" names "${mentions}")
  list(APPEND texts ${names})
endforeach()
list(REMOVE_DUPLICATES texts)
foreach(text ${texts})
  get_filename_component(name "${text}" NAME)
  if(EXISTS "/usr/share/${text}")
    file(REAL_PATH "/usr/share/${text}" real)
    file(COPY_FILE "${real}" "${folder}/licences/common-licenses/${name}")
  endif()
endforeach()
file(WRITE "${folder}/licences/README.txt" "\
Frostmark is under the MIT licence, its fonts are under the SIL Open Font License, and the libraries
in lib/ and plugins/ are under the licences in this folder, a file for each package. Qt is under the
GNU Lesser General Public License, version 3, whose text is common-licenses/LGPL-3. What these files
call /usr/share/common-licenses is the folder common-licenses here.

The libraries are those of the Debian packages below, unchanged. Debian offers the sources of each:
`apt-get source PACKAGE=VERSION` fetches them on a Debian machine, with the source package and the
version that follow \"from\". You may replace a library by another build of it: the programs take the
files in lib/ by name.

${table}")
