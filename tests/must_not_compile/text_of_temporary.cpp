// error: use of deleted function|call to deleted function
#include "kvjxml_read.hpp"

std::string_view nonceOf(std::string_view reply) {
    return kvjxml::text((*kvjxml::read<kvjxml::messages::nonce>(reply)).nonce);
}
