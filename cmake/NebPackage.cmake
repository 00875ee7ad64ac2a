# How what is handed out is compiled: hardened as the distributions do it, with as much of the debug
# symbols as names and lines in a crash's report need, and the same bytes in whatever folder.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection NEB_HAS_CF_PROTECTION)

add_compile_options(-g1 -fstack-protector-strong -fstack-clash-protection -D_FORTIFY_SOURCE=2
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=/usr/src/neb-slide-show
  -ffile-prefix-map=${PROJECT_BINARY_DIR}=/usr/src/neb-slide-show/build
  $<$<BOOL:${NEB_HAS_CF_PROTECTION}>:-fcf-protection>)
add_link_options(-Wl,-z,relro,-z,now -Wl,--build-id=sha1)
