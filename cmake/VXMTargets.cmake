# Settings that every target of our own shares.

# Warnings are errors in our code; headers of third parties come in as system headers.
function(vxm_own_code target)
  target_compile_options(
    ${target}
    PRIVATE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wnon-virtual-dtor
            -Wold-style-cast
            -Wconversion
            -Wno-sign-conversion
            -Werror)
endfunction()
