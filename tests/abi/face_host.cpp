// A host that reads every sample as every message with kvjxml.hpp, and says what it finds in its records, bit by bit,
// what it is told of the reply, the names of codes, and the requests that come of it. Much of that header is compiled
// into hosts: one of an earlier commit has to find the same with a later library.
#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <kvjxml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace messages = kvjxml::messages;

std::uint64_t hashOf(const void* data, std::size_t size, std::uint64_t hash = 14695981039346656037U) {
    const auto* const bytes = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) hash = (hash ^ bytes[i]) * 1099511628211U;
    return hash;
}

// ---- Lists: pointers to entries are no part of what a host finds ----

template <class... Entries>
std::uint64_t hashOfLists(std::uint64_t hash, const std::vector<Entries>&... lists) {
    const auto add = [&hash](const auto& list) {
        const std::size_t size = list.size();
        hash = hashOf(&size, sizeof size, hash);
        hash = hashOf(list.data(), size * sizeof(list[0]), hash);
    };
    (add(lists), ...);
    return hash;
}

template <class Record>
std::uint64_t hashOfRecord(const Record& record) {
    static_assert(std::is_trivially_copyable_v<Record>, "a list has an overload of its own");
    return hashOf(&record, sizeof record);
}
std::uint64_t hashOfRecord(const kvjxml::job_list& record) { return hashOfLists(0, record.jobs); }
std::uint64_t hashOfRecord(const kvjxml::access_point_list& record) { return hashOfLists(0, record.accessPoints); }
std::uint64_t hashOfRecord(const kvjxml::service_log& record) { return hashOfLists(0, record.entries); }
std::uint64_t hashOfRecord(const kvjxml::cleaning_log& record) { return hashOfLists(0, record.entries); }
std::uint64_t hashOfRecord(const kvjxml::capabilities& record) {
    return hashOfLists(hashOf(static_cast<const Kavrin::_Capabilities*>(&record), sizeof(Kavrin::_Capabilities)),
                       record.hostPorts, record.devicePorts, record.swInterfaces, record.ocpLanguages,
                       record.graphicFormats, record.fonts, record.templates, record.graphics, record.barCodes);
}
std::uint64_t hashOfRecord(const kvjxml::media_catalogue& record) {
    return hashOfLists(0, record.cards, record.films, record.ribbons, record.laminates);
}

// ---- What it says, each in a line ----

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '\n') {
            result += "\\n";
        } else {
            result += character;
        }
    }
    return result;
}

template <class Message>
void read(const std::string& file, const std::string& bytes) {
    const auto reading = kvjxml::read<Message>(bytes, kvjxml::diagnose);
    const std::string begin = file + ' ' + std::to_string(Message::number);
    std::printf("%s %d %d ", begin.c_str(), reading.has_value(), reading.whole());
    if (reading) {
        std::printf("%zu %016" PRIx64 "\n", sizeof(typename Message::record), hashOfRecord(*reading));
    } else {
        std::printf("%s\n", reading.error().message().c_str());
    }
    for (const kvjxml::finding& found : reading.findings()) {
        std::printf("%s %zu:%zu %zu+%zu %s %s %s %s %s %s %s\n", begin.c_str(), found.line, found.column, found.offset,
                    found.length, to_string(found.kind).data(), to_string(found.level).data(), found.path.c_str(),
                    found.field.c_str(), found.text.c_str(), found.became.c_str(), found.detail.c_str());
    }
}

template <class... Messages>
void readAll(const std::string& file, const std::string& bytes) {
    (read<Messages>(file, bytes), ...);
}

/// What becomes of it, both when changes are refused and when they are not.
template <class... Asked>
void compose(const std::string& what, const Asked&... asked) {
    for (const auto& chosen : {kvjxml::options{}, kvjxml::options{kvjxml::accept_changes{}}}) {
        const auto request = kvjxml::compose(asked..., chosen);
        if (request) std::printf("%s %s\n", what.c_str(), escaped(request.text()).c_str());
        for (const kvjxml::problem& problem : request.problems()) {
            std::printf("%s %d %s %s %s %s\n", what.c_str(), static_cast<int>(problem.kind), problem.field.c_str(),
                        problem.path.c_str(), problem.asked.c_str(), problem.sent.c_str());
        }
    }
}

/// Sends back what can be sent back.
void composeRecords(const std::string& file, const std::string& bytes) {
    if (const auto can = kvjxml::read<messages::capabilities>(bytes)) compose(file, *can);
    if (const auto media = kvjxml::read<messages::media>(bytes)) compose(file, *media);
    if (const auto printer = kvjxml::read<messages::printer_id>(bytes)) {
        compose(file, *printer);
        compose(file, *printer, kvjxml::identity_section::printhead_serial);
    }
    if (const auto settings = kvjxml::read<messages::configuration>(bytes)) {
        compose(file, *settings, kvjxml::section::all);
    }
    if (const auto keys = kvjxml::read<messages::keys>(bytes)) compose(file, *keys);
}

void composeCommands() {
    compose("motor", kvjxml::commands::motor{true, false, 40, 1});
    compose("motor_mode", kvjxml::commands::motor_mode{2, 5, 12.5F, 0, true});
    compose("cam", kvjxml::commands::cam{"head", "home"});
    compose("calibrate", kvjxml::commands::calibrate{1, 0.25F, 3.5F});
    compose("other", kvjxml::commands::other{"advance", "1", "Y", false});
    compose("rfid", kvjxml::commands::rfid{"rfid", 1, 2});
    compose("nonce", kvjxml::handshake::nonce{"5F3A90C1"});
    compose("action_request", kvjxml::handshake::action_request{"lock_printer", "CX-2", "000417", "5F3A90C1"});
    compose("action_directive", kvjxml::handshake::action_directive{"CX-2", "000417", "5F3A90C1", "9b1d", 30});
    compose("passkey", kvjxml::handshake::passkey{" old  one"});
    compose("passkey_change", kvjxml::handshake::passkey_change{"old one", "new one"});
    compose("key_change", kvjxml::handshake::key_change{"old", "a0", "a1", "d0", "d1", "c0", "c1", true, true, true});
}

void say(const char* field, int code, std::string_view word) {
    std::printf("%s %d %.*s\n", field, code, static_cast<int>(word.size()), word.data());
}

void nameCodes() {
    for (int code = -1; code < 512; ++code) {
        using Status = Kavrin::KVGeneralStatus;
        using Job = Kavrin::KVJobStatus;
        say("printerState", code, kvjxml::name<&Status::printerState>(code).value_or("-"));
        say("printState", code, kvjxml::name<&Job::printState>(code).value_or("-"));
        say("code", code, kvjxml::name<&_MediaStatusInfo::code>(code).value_or("-"));
        for (const auto word : kvjxml::names<&Kavrin::_Capabilities::imageSharpeningLevels>(code)) {
            say("imageSharpeningLevels", code, word);
        }
    }
    say("printerState", kvjxml::code<&Kavrin::KVGeneralStatus::printerState>("standby").value_or(-1), "standby");
}

}  // namespace

int main(int, char** arguments) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream stream(entry.path());
        const std::string bytes(std::istreambuf_iterator<char>(stream), {});
        readAll<messages::general_status, messages::job_status, messages::job_list, messages::media_status,
                messages::card_count, messages::cards_until_cleaning, messages::up_times, messages::free_ram,
                messages::free_flash, messages::cleaning_status, messages::sensor_status, messages::sensor_info,
                messages::sensor_states, messages::wireless_status, messages::wireless_radio_status,
                messages::access_points, messages::capabilities, messages::configuration, messages::media,
                messages::printer_id, messages::service_history, messages::cleaning_history, messages::magnetic_tracks,
                messages::laminator_response, messages::nonce, messages::host_keys, messages::printer_key,
                messages::secure_directive, messages::secure_request, messages::keys, messages::key_changes,
                messages::passkey>(entry.path().filename().string(), bytes);
        composeRecords(entry.path().filename().string(), bytes);
    }
    composeCommands();
    nameCodes();
}
