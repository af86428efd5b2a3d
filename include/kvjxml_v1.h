/// @file kvjxml_v1.h
/// What the functions of kvjxml.hpp call in the library. Hosts use those; this is what crosses the library's boundary:
/// pointers, sizes and plain structures alone, so that a host may be built with another compiler, standard library or
/// version than the library. Nothing in here changes any more; what is added gets another name.
#ifndef KVJXML_V1_H
#define KVJXML_V1_H

#include <stddef.h>  // NOLINT(modernize-deprecated-headers): it is a header for C as well.

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
    /// Gets a terminated text where the message was not found: the name of the reply's first element, cut to its room;
    /// empty when there is no element, or no such message in this library.
    char* root;
    size_t root_size;  ///< 1 at least
};

enum kvjxml_v1_result {
    kvjxml_v1_found = 1,  ///< the message is in the reply
    kvjxml_v1_whole = 2,  ///< the reply is whole
    kvjxml_v1_no_memory = 4,
    kvjxml_v1_too_large = 8
};

/// What was ignored, changed or lost in a reply; kvjxml::finding says what each field is. No text is null, and all but
/// `text` are terminated.
struct kvjxml_v1_finding {
    int kind;       ///< a kvjxml::finding_kind
    int severity;   ///< a kvjxml::severity
    size_t line;    ///< from 1
    size_t column;  ///< in characters, from 1
    size_t offset;  ///< in bytes
    size_t length;  ///< in bytes
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

/// Characters of either side, not terminated.
struct kvjxml_v1_characters {
    const char* first;
    size_t size;
};

/// What is composed, see kvjxml_compose.hpp.
struct kvjxml_v1_request {
    const char* name;    ///< the request's, terminated
    const void* record;  ///< what it is made of
    long sections;
    int part;
    int card;
    unsigned char direct_to_card;
    unsigned char all_cards;
    unsigned char whole;  ///< of a printer's identity: all of it
    unsigned char accepts_changes;
    const struct kvjxml_v1_characters* texts;  ///< those that are passed as arguments, whole
    size_t texts_count;
};

/// Where a text is written.
struct kvjxml_v1_room {
    char* characters;
    size_t capacity;
    /// Makes room for that many characters, the present ones included; null where what does not fit is only counted.
    /// @return where they are now; null when there is no memory.
    char* (*more)(void* host, size_t capacity);
    void* host;
};

/// What would be sent otherwise than it is asked for. Its texts are there while it is reported.
struct kvjxml_v1_problem {
    int kind;
    struct kvjxml_v1_characters field;
    struct kvjxml_v1_characters path;
    struct kvjxml_v1_characters asked;
    struct kvjxml_v1_characters sent;
};

/// Who is told of problems.
struct kvjxml_v1_listener {
    /// @return 0 when there is no memory for it.
    int (*report)(void* host, const struct kvjxml_v1_problem* problem);
    void* host;
};

enum kvjxml_v1_composing {
    kvjxml_v1_composed = 0,
    kvjxml_v1_refused = 1,  ///< the problems were reported
    kvjxml_v1_without_memory = 2,
    kvjxml_v1_unknown_request = 3
};

/// Composes a request.
/// @param size  gets the size of the text, which may be more than there is room for.
/// @return a kvjxml_v1_composing.
KVJXML_API int kvjxml_v1_compose(const struct kvjxml_v1_request* request, const struct kvjxml_v1_room* room,
                                 const struct kvjxml_v1_listener* listener, size_t* size);

#ifdef __cplusplus
}
#endif

#endif
