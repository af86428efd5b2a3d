// error: use of deleted function|overload resolution selected deleted operator
#include "kvjxml_read.hpp"

void show(std::string_view reply) {
    for (const auto& job : kvjxml::read<kvjxml::messages::job_list>(reply)->jobs) static_cast<void>(job);
}
