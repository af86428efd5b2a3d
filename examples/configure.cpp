// Changes settings of a printer: reads its configuration, and composes a request with the sections that are changed.
//
//     configure NETWORK CONTRAST <configuration.xml >request.xml
//
// Standard input is the reply "configuration"; the request gets the name of the wireless network and the contrast of
// the panel. Ends with 1, and composes nothing, when the reply is not good enough to be sent back, or when the printer
// would get something else than was asked for.
#include <kvjxml.hpp>

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <string>

using Configuration = Kavrin::_KVConfiguration;

namespace {

/// What this program can do wrong. kvjxml_problem.hpp has all that can be.
const char* why(kvjxml::problem_kind kind) {
    switch (kind) {
        case kvjxml::problem_kind::out_of_range:
            return "is outside its range";
        case kvjxml::problem_kind::read_otherwise:
            return "is not what the printer would read";
        default:
            return "cannot be sent";
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: configure NETWORK CONTRAST <configuration.xml >request.xml\n";
        return 2;
    }
    const std::string bytes(std::istreambuf_iterator<char>(std::cin), {});
    const auto reply = kvjxml::read<kvjxml::messages::configuration>(bytes);
    if (!reply) {
        std::cerr << reply.error().message() << '\n';
        return 1;
    }
    // A section is sent as a whole. What a damaged reply does not say would be sent as zeros.
    if (!reply.whole() || !reply.has<&Configuration::wireless>() || !reply.has<&Configuration::lcdContrast>()) {
        std::cerr << "the reply is not complete\n";
        return 1;
    }

    Configuration settings = *reply;
    if (!kvjxml::set_text(settings.wireless.ssid, arguments[1])) {
        std::cerr << "the name of a network has at most " << sizeof settings.wireless.ssid - 1 << " bytes\n";
        return 1;
    }
    settings.lcdContrast.value = std::atoi(arguments[2]);

    const auto request = kvjxml::compose(settings, kvjxml::section::wireless | kvjxml::section::lcd_contrast);
    if (!request) {
        for (const kvjxml::problem& problem : request.problems()) {
            std::cerr << problem.field << ": \"" << problem.asked << "\" " << why(problem.kind) << '\n';
        }
        return 1;
    }
    std::cout << request.text();
}
