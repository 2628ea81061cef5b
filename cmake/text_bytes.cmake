# The bytes of a text file as elements of a C++ array, with CR LF at the ends of its lines however they end in the file.
function(text_bytes path result)
  file(READ "${path}" bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(REPLACE "0x0d," "" bytes "${bytes}")
  string(REPLACE "0x0a," "0x0d,0x0a,\n" bytes "${bytes}")
  set(${result} "${bytes}" PARENT_SCOPE)
endfunction()
