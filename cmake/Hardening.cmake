# Protections of compiler and linker for the targets of the folder that includes this: what a fault could still do is to
# end the program, not to run another's code. A flag whose subject the builder's own flags mention already is left to them.
if(NOT KVJXML_HARDENING)
    return()
endif()
include(CheckCXXCompilerFlag)

# kvjxml_harden(FLAG SUBJECT): compile with FLAG where the compiler knows it, and it means something for the processor.
function(kvjxml_harden flag subject)
    set(CMAKE_REQUIRED_FLAGS -Werror)
    string(MAKE_C_IDENTIFIER "KVJXML_HAS_${flag}" has_flag)
    check_cxx_compiler_flag("${flag}" ${has_flag})
    if(${has_flag} AND NOT CMAKE_CXX_FLAGS MATCHES "${subject}")
        add_compile_options("${flag}")
    endif()
endfunction()
kvjxml_harden(-fstack-protector-strong stack-protector)
kvjxml_harden(-fstack-clash-protection stack-clash-protection)
kvjxml_harden(-fcf-protection cf-protection)
kvjxml_harden(-mbranch-protection=standard branch-protection)

# The C library checks lengths only in code that is optimised. Some compilers set a level of their own.
if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE|-fsanitize")
    foreach(config Release RelWithDebInfo MinSizeRel)
        add_compile_options("$<$<CONFIG:${config}>:-U_FORTIFY_SOURCE>" "$<$<CONFIG:${config}>:-D_FORTIFY_SOURCE=2>")
    endforeach()
endif()

# kvjxml_harden_link(OPTION SUBJECT)
function(kvjxml_harden_link option subject)
    if(NOT "${CMAKE_SHARED_LINKER_FLAGS} ${CMAKE_EXE_LINKER_FLAGS} ${CMAKE_CXX_FLAGS}" MATCHES "-z[, ]*(${subject})")
        add_link_options("LINKER:-z,${option}")
    endif()
endfunction()
kvjxml_harden_link(relro "relro|norelro")
kvjxml_harden_link(now "now|lazy")
kvjxml_harden_link(noexecstack "noexecstack|execstack")
