// error: assignment of member|cannot assign to return value|read-only
#include "kvjxml_read.hpp"

void change(std::string_view reply) {
    auto status = kvjxml::read<kvjxml::messages::general_status>(reply);
    status->error = 0;
}
