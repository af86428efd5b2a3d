// error: could not convert|no viable conversion
#include <kvjxml_compose.hpp>

std::string sent(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose(info); }
