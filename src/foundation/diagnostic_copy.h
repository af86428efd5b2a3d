/// @file diagnostic_copy.h
/// The copy of a request that the service engineer finds: a courtesy, which must not harm the host or tell anyone else
/// what is in the request.
#ifndef KVJXML_FOUNDATION_DIAGNOSTIC_COPY_H
#define KVJXML_FOUNDATION_DIAGNOSTIC_COPY_H

#include <tinyxml.h>

namespace kvjxml {

/// Leaves a copy of `request` in the file `path`, and says nothing when that fails: the file is then as it was. A copy
/// can hold a network key, and its name is known to everyone. So it is written to a new file beside `path`, named
/// `path` with a point and six characters, that only its owner can read, and takes its place when it is whole. Only a
/// plain file of this user's with this one name is replaced, and only if it can be written to: not a link, a pipe, a
/// file of another user or one with a second name.
///
/// No signal tells the host that a file may not grow so large.
void keepDiagnosticCopy(const TiXmlDocument& request, const char* path);

}  // namespace kvjxml

#endif
