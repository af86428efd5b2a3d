#include "face/findings_in.h"

#include "support/readings.h"

namespace kvj::tests {

bool tellsOfOneRecord(const Message& /*message*/) { return true; }

std::vector<kvjxml::finding> findingsIn(const Message& message, const std::string& reply) {
    return readAny(message, reply, kvjxml::diagnose).findings;
}

}  // namespace kvj::tests
