/// @file diagnostic_copy.h
/// A copy of a request, left for the service engineer. It is a courtesy: it must neither harm the host nor show anyone
/// else what is in the request.
#ifndef KVJXML_FOUNDATION_DIAGNOSTIC_COPY_H
#define KVJXML_FOUNDATION_DIAGNOSTIC_COPY_H

#include <tinyxml.h>

namespace kvj {

/// Leaves a copy of `request` in the file `path`. When that fails, nothing is said and the file is as it was. A copy
/// can hold a network key, and everyone knows its name. So it is written to a new file that only its owner can read,
/// named `path` with a dot and six characters added, and this replaces `path` once it is whole. Only a plain file is
/// replaced, and only if it belongs to this user, has no other name and can be written to: never a link or a pipe.
///
/// The host gets no signal when the file would grow beyond what the process may write.
void keepDiagnosticCopy(const TiXmlDocument& request, const char* path);

}  // namespace kvj

#endif
