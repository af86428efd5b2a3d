/// @file kvjxml_v1.h
/// What the functions of kvjxml.hpp call in the library. Hosts use those; this is what crosses the library's boundary:
/// pointers, sizes and plain structures alone, so that a host may be built with another compiler, standard library or
/// version than the library. Nothing in here changes any more; what is added gets another name.
#ifndef KVJXML_V1_H
#define KVJXML_V1_H

#include <stddef.h>

#include "kvjxml_export.h"

#ifdef __cplusplus
extern "C" {
#endif

/// A list of the host's that entries go to.
struct kvjxml_v1_list {
    const char* name;  ///< that of the field
    void* list;
    /// Gives the list this many entries, new ones all zero.
    /// @return the first; null, and the list stays as it is, when there is no memory or no entry.
    void* (*resize)(void* list, size_t count);
};

/// Where a message goes.
struct kvjxml_v1_target {
    void* record;  ///< all zero
    size_t size;   ///< of the record
    /// A bit for each byte of the record, all zero: that of the first byte of each field that the reply carried is set.
    unsigned char* carried;
    const struct kvjxml_v1_list* lists;  ///< all that the message has
    size_t lists_count;
    char* root;        ///< gets the name of the first element, terminated and cut, where the message was not found
    size_t root_size;  ///< 1 at least
};

enum kvjxml_v1_result {
    kvjxml_v1_found = 1,  ///< the message is in the reply
    kvjxml_v1_whole = 2,  ///< the reply is whole
    kvjxml_v1_no_memory = 4,
    kvjxml_v1_too_large = 8
};

/// What was ignored, changed or lost in a reply.
struct kvjxml_v1_finding {
    int kind;
    int severity;
    size_t line;
    size_t column;
    size_t offset;
    size_t length;
    const char* path;
    const char* field;
    const char* text;
    size_t text_length;
    const char* became;
    const char* detail;
};
struct kvjxml_v1_findings;

/// Reads a message.
/// @param message   its number, see kvjxml_messages.hpp.
/// @param findings  null for no diagnosis; else it gets the findings, to be released, or null when there are none.
/// @return flags of kvjxml_v1_result.
KVJXML_API int kvjxml_v1_read(int message, const char* text, size_t length, const struct kvjxml_v1_target* target,
                              struct kvjxml_v1_findings** findings);

KVJXML_API size_t kvjxml_v1_findings_count(const struct kvjxml_v1_findings* findings);
/// How many more there were, beyond the most that are kept.
KVJXML_API size_t kvjxml_v1_findings_omitted(const struct kvjxml_v1_findings* findings);
/// @param finding  its texts belong to `findings`.
KVJXML_API void kvjxml_v1_findings_at(const struct kvjxml_v1_findings* findings, size_t index,
                                      struct kvjxml_v1_finding* finding);
KVJXML_API void kvjxml_v1_findings_release(struct kvjxml_v1_findings* findings);

#ifdef __cplusplus
}
#endif

#endif
