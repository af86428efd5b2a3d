/// @file kvjxml_export.h
/// The one macro that makes a class or a function part of the library's interface; everything else stays inside it.
#ifndef KVJXML_EXPORT_H
#define KVJXML_EXPORT_H

#if defined(__GNUC__)
#define KVJXML_API __attribute__((visibility("default")))
#else
#define KVJXML_API
#endif

#endif
