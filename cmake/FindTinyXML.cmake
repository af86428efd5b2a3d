# Finds TinyXML through pkg-config and gives the target TinyXML::TinyXML.
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
    pkg_check_modules(TINYXML QUIET IMPORTED_TARGET tinyxml)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(TinyXML
    REQUIRED_VARS TINYXML_LINK_LIBRARIES
    VERSION_VAR TINYXML_VERSION
    REASON_FAILURE_MESSAGE "pkg-config and TinyXML's tinyxml.pc are needed (on Debian: pkg-config and libtinyxml-dev)")

if(TinyXML_FOUND AND NOT TARGET TinyXML::TinyXML)
    add_library(TinyXML::TinyXML INTERFACE IMPORTED)
    set_target_properties(TinyXML::TinyXML PROPERTIES INTERFACE_LINK_LIBRARIES PkgConfig::TINYXML)
endif()
