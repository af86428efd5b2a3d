# Finds TinyXML by its header and its library, and gives the target TinyXML::TinyXML. Another place than the usual ones is
# told with TinyXML_ROOT, or with TinyXML_INCLUDE_DIR and TinyXML_LIBRARY.
find_path(TinyXML_INCLUDE_DIR tinyxml.h)
find_library(TinyXML_LIBRARY tinyxml)
mark_as_advanced(TinyXML_INCLUDE_DIR TinyXML_LIBRARY)

# The header has the version as three constants.
if(TinyXML_INCLUDE_DIR)
    file(READ "${TinyXML_INCLUDE_DIR}/tinyxml.h" TinyXML_VERSION)
    string(REGEX MATCHALL "TIXML_(MAJOR|MINOR|PATCH)_VERSION *= *[0-9]+" TinyXML_VERSION "${TinyXML_VERSION}")
    list(TRANSFORM TinyXML_VERSION REPLACE ".*= *" "")
    list(JOIN TinyXML_VERSION "." TinyXML_VERSION)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(TinyXML
    REQUIRED_VARS TinyXML_LIBRARY TinyXML_INCLUDE_DIR
    VERSION_VAR TinyXML_VERSION
    REASON_FAILURE_MESSAGE "its header tinyxml.h and its library are needed (on Debian: libtinyxml-dev)")

if(TinyXML_FOUND AND NOT TARGET TinyXML::TinyXML)
    add_library(TinyXML::TinyXML UNKNOWN IMPORTED)
    set_target_properties(TinyXML::TinyXML PROPERTIES
        IMPORTED_LOCATION "${TinyXML_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${TinyXML_INCLUDE_DIR}")
endif()
