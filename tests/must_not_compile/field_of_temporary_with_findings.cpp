// error: use of deleted function|overload resolution selected deleted operator
#include "kvjxml_read.hpp"

const char* uuidOf(std::string_view reply) {
    return kvjxml::read<kvjxml::messages::job_status>(reply, kvjxml::diagnose)->uuid;
}
