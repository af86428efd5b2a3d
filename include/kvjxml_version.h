/// @file kvjxml_version.h
/// Which version of libkvjxml a host is compiled with, and which one it runs with. C can include it as well.
#ifndef KVJXML_VERSION_H
#define KVJXML_VERSION_H

#include "kvjxml_export.h"

/// The version of these headers. The first number is that of the SONAME as well.
#define KVJXML_VERSION_MAJOR 0
#define KVJXML_VERSION_MINOR 1
#define KVJXML_VERSION_PATCH 0

/// A version as a number, to be compared: KVJXML_VERSION_OF(1, 2, 3) is 10203.
#define KVJXML_VERSION_OF(major, minor, patch) ((major)*10000 + (minor)*100 + (patch))
/// The version of these headers as such a number: #if KVJXML_VERSION_NUMBER >= KVJXML_VERSION_OF(0, 2, 0)
#define KVJXML_VERSION_NUMBER KVJXML_VERSION_OF(KVJXML_VERSION_MAJOR, KVJXML_VERSION_MINOR, KVJXML_VERSION_PATCH)
/// The same as text, "0.1.0".
#define KVJXML_VERSION KVJXML_VERSION_TEXT(KVJXML_VERSION_MAJOR, KVJXML_VERSION_MINOR, KVJXML_VERSION_PATCH)
#define KVJXML_VERSION_TEXT(major, minor, patch) KVJXML_VERSION_JOINED(major, minor, patch)
#define KVJXML_VERSION_JOINED(major, minor, patch) #major "." #minor "." #patch

#ifdef __cplusplus
extern "C" {
#endif

/// The version of the library that the host runs with, as text such as "0.1.0". It is static: nobody releases it.
KVJXML_API const char* kvjxml_version(void);
/// The same as a number. A library of the same SONAME that is not older than the headers of a host has all that it
/// calls: kvjxml_version_number() >= KVJXML_VERSION_NUMBER.
KVJXML_API int kvjxml_version_number(void);

#ifdef __cplusplus
}
#endif

#endif
