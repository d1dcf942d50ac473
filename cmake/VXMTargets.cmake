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
  # g++ 12 warns falsely of overlapping copies inside std::string when it optimises.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endfunction()
