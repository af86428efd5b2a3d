#include <kvjxml_compose.hpp>

std::string sent(const Kavrin::_KVConfiguration& configuration) {
    const auto request = kvjxml::compose(configuration, kvjxml::section::wireless);
    return request ? request.text() : std::string();
}

std::size_t problems(const Kavrin::KVPrinterInfo& info) { return kvjxml::compose(info).problems().size(); }
