// error: deleted function|deleted member function
#include <kvjxml_compose.hpp>

std::string_view sent(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose(info).text(); }
