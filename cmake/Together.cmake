# Reading the headers takes longer than compiling what follows them, so sources are compiled several at a time.
# lyt_compile_together(COUNT TARGET...)
function(lyt_compile_together count)
  if(LYT_TOGETHER)
    set_target_properties(${ARGN} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${count})
  endif()
endfunction()
