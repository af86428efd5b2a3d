/// @file request.h
/// The frame of every composer: a document with its declaration and root is begun, filled by the message, and printed
/// into the host's buffer.
#ifndef KVJXML_FOUNDATION_REQUEST_H
#define KVJXML_FOUNDATION_REQUEST_H

#include <tinyxml.h>

namespace kvj {

/// Appends the declaration (version 1.0, UTF-8) and an empty root element to `request`.
/// @return the root, owned by `request`. What `request` holds already stays in front of them.
TiXmlElement* beginRequest(TiXmlDocument& request, const char* rootName);

/// The same after clearing `request`, for composers whose objects serve any number of messages.
TiXmlElement* beginRequestAnew(TiXmlDocument& request, const char* rootName);

/// Prints `request`, indented by four spaces a level, as wide text in the process's locale.
/// @param out  a buffer of `capacity` wide characters. A text of that length or longer fills it **without** a
///             terminator; a byte that the locale does not know ends the text, also without a terminator.
/// @return false, with nothing written, when `out` is null or `capacity` negative.
bool print(const TiXmlDocument& request, wchar_t* out, int capacity);

/// Prints `request` likewise as narrow text with its terminator. `out` must hold all of it: there is no bound.
/// @return false, with nothing written, when `out` is null.
bool print(const TiXmlDocument& request, char* out);

/// Saves `request` to the file `path`. False when `path` is null or the file cannot be written.
bool save(const TiXmlDocument& request, const char* path);

}  // namespace kvj

#endif
