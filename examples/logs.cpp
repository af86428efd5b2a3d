// When a printer was serviced and cleaned.
//
//     logs get_log_service_history.xml get_log_cleaning_history.xml
//
// The files are the replies "get_log_service_history" and "get_log_cleaning_history". Ends with 1 when one of them is
// something else, or damaged.
#include <kvjxml.hpp>

#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

namespace {

/// The message in a file. Half a log is none: what is damaged counts as missing.
template <class Message>
std::optional<typename Message::record> read(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    auto reading = kvjxml::read<Message>(bytes);
    if (!reading) {
        std::cerr << file << ": " << reading.error().message() << '\n';
        return std::nullopt;
    }
    if (!reading.whole()) {
        std::cerr << file << ": the reply is damaged\n";
        return std::nullopt;
    }
    return std::move(reading).value();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: logs get_log_service_history.xml get_log_cleaning_history.xml\n";
        return 2;
    }
    const auto services = read<kvjxml::messages::service_history>(arguments[1]);
    const auto cleanings = read<kvjxml::messages::cleaning_history>(arguments[2]);
    if (services) {
        for (const auto& service : services->entries) {
            std::cout << service.year << '-' << (service.month < 10 ? "0" : "") << service.month << " serviced after "
                      << service.card_count << " cards, code " << service.code << '\n';
        }
    }
    if (cleanings) {
        int before = 0;
        for (const auto& cleaning : cleanings->entries) {
            std::cout << "cleaned after " << cleaning.cards - before << " more cards, type " << cleaning.type << '\n';
            before = cleaning.cards;
        }
    }
    return services && cleanings ? 0 : 1;
}
