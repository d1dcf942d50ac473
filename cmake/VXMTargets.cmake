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

# Lets out of a shared library what a version script names, and nothing else.
function(vxm_export_by target map)
  target_link_options(${target} PRIVATE -Wl,--version-script=${map})
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
endfunction()
