// error: has no member named .findings.|no member named 'findings'
#include "kvjxml_read.hpp"

std::size_t countIn(std::string_view reply) {
    const auto nonce = kvjxml::read<kvjxml::messages::nonce>(reply);
    return nonce.findings().size();
}
