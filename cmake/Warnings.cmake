# One interface target carries what every target of ours is compiled with.
add_library(lyt_options INTERFACE)
# What is handed out carries neither symbols nor what nobody calls.
add_library(lyt_handed_out INTERFACE)
if(MSVC)
  # Nobody has tried this compiler yet; docs/contributing.md says how far it should come.
  target_compile_options(lyt_options INTERFACE /W4 /WX /permissive- /utf-8 /Zc:__cplusplus /GS /guard:cf)
  target_link_options(lyt_options INTERFACE /guard:cf /DYNAMICBASE /HIGHENTROPYVA /Brepro)
  target_link_options(lyt_handed_out INTERFACE /OPT:REF)
  set(lyt_small /O1)
  set(lyt_built_soon /Od)
else()
  # In WebAssembly a return address is out of reach anyway.
  if(NOT EMSCRIPTEN)
    set(guard -fstack-protector-strong)
  endif()
  target_compile_options(lyt_options INTERFACE
    -Werror -Wall -Wextra -Wpedantic -Wshadow
    # What converts a sign is left out, as GCC does by itself.
    $<$<COMPILE_LANGUAGE:CXX>:-Wconversion> $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-sign-conversion>
    # GCC 12 sees overlapping copies inside std::string where there are none.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. ${guard} -ffunction-sections -fdata-sections)
  target_link_options(lyt_options INTERFACE ${guard})
  target_link_options(lyt_handed_out INTERFACE -s -Wl,--gc-sections)
  # A function that holds an array and could not be guarded is an error.
  set(lyt_small -Os -Wstack-protector)
  set(lyt_built_soon -O0)
endif()

# The conversion of a floating-point number that no integer holds is not counted among the undefined behaviour.
set(LYT_SANITIZERS address,undefined,float-cast-overflow)

if(LYT_SANITIZE)
  target_compile_options(lyt_options INTERFACE -fsanitize=${LYT_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lyt_options INTERFACE -fsanitize=${LYT_SANITIZERS})
endif()
if(LYT_COVERAGE)
  # The tests as well: much of a header is compiled nowhere else.
  target_compile_options(lyt_options INTERFACE -O0 --coverage)
  target_link_options(lyt_options INTERFACE --coverage)
endif()
if(LYT_CHECKED)
  # There is no sanitizer runtime for this platform; what the checks find ends the program.
  target_compile_options(lyt_options INTERFACE -fsanitize=undefined,float-cast-overflow -fsanitize-undefined-trap-on-error
    -fno-sanitize=vptr -D_GLIBCXX_ASSERTIONS -D_FORTIFY_SOURCE=2)
  # What the checks put in makes GCC 12 see unset members and null pointers inside the standard library.
  target_compile_options(lyt_options INTERFACE -Wno-maybe-uninitialized -Wno-null-dereference)
endif()
if(LYT_FUZZ)
  target_compile_options(lyt_options INTERFACE -fsanitize=fuzzer-no-link,${LYT_SANITIZERS} -fno-sanitize-recover=all)
  target_link_options(lyt_options INTERFACE -fsanitize=${LYT_SANITIZERS})
endif()
