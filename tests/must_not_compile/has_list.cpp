// error: of a list ask whether it is empty
#include "kvjxml_read.hpp"

bool hasJobs(std::string_view reply) {
    return kvjxml::read<kvjxml::messages::job_list>(reply).has<&kvjxml::job_list::jobs>();
}
