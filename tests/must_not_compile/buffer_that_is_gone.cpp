// error: no matching function|no viable|could not convert
#include <kvjxml_compose.hpp>

auto sent(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose_to(std::array<char, 4096>(), info); }
