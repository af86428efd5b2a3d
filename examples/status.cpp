// A monitor: what a printer is doing, its alarms, and how much of its media is left.
//
//     status get_general_status.xml get_media_status.xml
//
// The files are the replies "get_general_status" and "get_media_status", as the printer sent them. What was ignored,
// changed or lost in them goes to standard error. Ends with 1 when a message is missing or a reply damaged.
#include <kvjxml.hpp>

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

using Status = Kavrin::KVGeneralStatus;

namespace {

/// The message in a file, with a line for everything that there is to say about it.
template <class Message>
kvjxml::diagnosed_reading<Message> read(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    auto reading = kvjxml::read<Message>(bytes, kvjxml::diagnose);
    for (const kvjxml::finding& found : reading.findings()) {
        std::cerr << file << ':' << found.line << ':' << found.column << ": " << to_string(found.level) << ": "
                  << to_string(found.kind) << " \"" << found.text << "\" at " << found.path;
        if (!found.became.empty()) std::cerr << ", read as " << found.became;
        if (!found.detail.empty()) std::cerr << ": " << found.detail;
        std::cerr << '\n';
    }
    if (!reading) {
        std::cerr << file << ": " << reading.error().message() << '\n';
    } else if (!reading.whole()) {
        std::cerr << file << ": the reply is damaged, only a part of it is shown\n";
    }
    return reading;
}

void show(const kvjxml::reading<kvjxml::messages::general_status>& status) {
    // What the reply does not carry is zero in the record, and not shown.
    if (status.has<&Status::printerState>()) {
        std::cout << "Printer: " << kvjxml::name<&Status::printerState>(*status).value_or("unknown") << '\n';
    }
    if (status.has<&Status::laminatorState>()) {
        std::cout << "Laminator: " << kvjxml::name<&Status::laminatorState>(*status).value_or("unknown") << '\n';
    }
    if (status.has<&Status::jobsInProgress>()) std::cout << "Jobs in progress: " << status->jobsInProgress << '\n';
    // What each of them stands for is in the printer's manual.
    for (const int bit : kvjxml::bits(status->alarms)) std::cout << "Alarm: " << bit << '\n';

    // What a monitor acts on. A library that is newer than its host may know states that have no enumerator here.
    const auto state = kvjxml::as_enum<&Status::printerState>(*status);
    if (!state) return;
    switch (*state) {
        case kvjxml::printer_state::alarm_handling:
        case kvjxml::printer_state::offline:
            std::cout << "Somebody has to see to it.\n";
            break;
        default:
            break;
    }
}

const char* level(const _MediaStatusInfo& medium) {
    if (medium.panelsRemaining <= 0) return "empty";
    if (medium.panelsRemaining < medium.initialSize / 5) return "low";
    return "good";
}

void show(const char* place, const _MediaStatusInfo& medium, std::string_view kind) {
    std::cout << place << ": " << kind << ", " << medium.panelsRemaining << " of " << medium.initialSize
              << " panels left, " << level(medium) << '\n';
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: status get_general_status.xml get_media_status.xml\n";
        return 2;
    }
    const auto status = read<kvjxml::messages::general_status>(arguments[1]);
    if (status) show(status);

    const auto media = read<kvjxml::messages::media_status>(arguments[2]);
    if (media) {
        // A medium that the reply does not have is not loaded. Laminates have no words, only the printer's description.
        const auto word = [](const _MediaStatusInfo& medium) {
            return kvjxml::name<&_MediaStatusInfo::code>(medium).value_or("unknown");
        };
        if (media.has<&MediaStatus::ribbon>()) show("Ribbon", media->ribbon, word(media->ribbon));
        if (media.has<&MediaStatus::film>()) show("Film", media->film, word(media->film));
        if (media.has<&MediaStatus::topLaminate>()) {
            show("Top laminate", media->topLaminate, kvjxml::text(media->topLaminate.description));
        }
        if (media.has<&MediaStatus::bottomLaminate>()) {
            show("Bottom laminate", media->bottomLaminate, kvjxml::text(media->bottomLaminate.description));
        }
    }
    return status && status.whole() && media && media.whole() ? 0 : 1;
}
