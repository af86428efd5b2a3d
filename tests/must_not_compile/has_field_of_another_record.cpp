// error: a field of another record
#include "kvjxml_read.hpp"

bool hasUuid(std::string_view reply) {
    return kvjxml::read<kvjxml::messages::general_status>(reply).has<&Kavrin::KVJobStatus::uuid>();
}
