/// @file face/severity.h
/// How much each kind of finding matters.
#ifndef KVJXML_FACE_SEVERITY_H
#define KVJXML_FACE_SEVERITY_H

#include <kvjxml_read.hpp>

namespace kvj {

constexpr kvjxml::severity severityOf(kvjxml::finding_kind kind) {
    switch (kind) {
        case kvjxml::finding_kind::unknown_element:
            return kvjxml::severity::note;
        case kvjxml::finding_kind::no_text:
        case kvjxml::finding_kind::attribute:
        case kvjxml::finding_kind::repeated:
        case kvjxml::finding_kind::beyond_capacity:
        case kvjxml::finding_kind::ignored:
            return kvjxml::severity::warning;
        default:
            return kvjxml::severity::error;
    }
}

}  // namespace kvj

#endif
