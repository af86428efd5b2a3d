// What the other sources ask of readings, as it has to be.
#include "kvjxml_read.hpp"

namespace messages = kvjxml::messages;

std::size_t show(std::string_view reply) {
    const auto list = kvjxml::read<messages::job_list>(reply);
    if (!list) return list.error().message().size();
    std::size_t length = 0;
    for (const auto& job : list->jobs) length += kvjxml::text(job.uuid).size();
    const auto record = *kvjxml::read<messages::job_status>(reply);
    const auto nonce = kvjxml::read<messages::nonce>(reply, kvjxml::diagnose).value();
    const auto findings = kvjxml::read<messages::nonce>(reply, kvjxml::diagnose).findings();
    const bool hasUuid = kvjxml::read<messages::job_status>(reply).has<&Kavrin::KVJobStatus::uuid>();
    const bool hasType =
        kvjxml::read<messages::media_status>(reply).has<&MediaStatus::ribbon, &_MediaStatusInfo::type>();
    return length + findings.size() + kvjxml::text(record.uuid).size() + kvjxml::text(nonce.nonce).size() +
           (hasUuid && hasType ? 1 : 0);
}
