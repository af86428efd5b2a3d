// error: no matching function|could not convert|no viable
#include <kvjxml_compose.hpp>

auto sent(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose(info, kvjxml::section::wireless); }
