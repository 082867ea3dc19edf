# What is shipped reads files of other people's worlds, so it is built to stop where memory is
# overrun instead of going on. tools/check-hardening looks for it in the finished programs; the price
# is 2 to 3 % of a season.
include(CheckCXXCompilerFlag)

foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "has${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    target_compile_options(frostmark_settings INTERFACE $<$<CONFIG:Release>:${flag}>)
  endif()
endforeach()
target_compile_options(frostmark_settings INTERFACE
  "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
target_link_options(frostmark_settings INTERFACE
  "$<$<CONFIG:Release>:-Wl,-z,relro;-Wl,-z,now>")
