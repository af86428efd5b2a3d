/// @file face/findings.h
/// What a diagnosis found, until it is handed to the host.
#ifndef KVJXML_FACE_FINDINGS_H
#define KVJXML_FACE_FINDINGS_H

#include <kvjxml_v1.h>

#include <cstddef>
#include <kvjxml_read.hpp>
#include <vector>

namespace kvj {

struct Findings {
    /// A hostile reply could fill any memory with them.
    static constexpr std::size_t most = 10'000;

    std::vector<kvjxml::finding> all;
    std::size_t omitted = 0;
};

/// Null when there are none.
kvjxml_v1_findings* handOver(Findings findings);

}  // namespace kvj

#endif
