// What hosts of kvjxml.hpp pay for a reading, and for its findings, against the named operations on the same narrow
// text. See README.md.
#include <KVJMediaParser.h>
#include <KVJPrinterIDParser.h>
#include <KVJSensorParser.h>

#include <cstddef>
#include <cstring>
#include <kvjxml_read.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "contest.h"

namespace {

using namespace kvj::bench;

/// How much of the named operation's time each may take.
constexpr double readingLimit = 1.05;
constexpr double findingsLimit = 1.5;

template <class Message>
bool isRead(const std::string& text) {
    const auto reading = kvjxml::read<Message>(text);
    return reading && reading.whole();
}
template <class Message>
bool isDiagnosed(const std::string& text) {
    const auto reading = kvjxml::read<Message>(text, kvjxml::diagnose);
    return reading && reading.whole() && reading.findings().empty();
}

/// Two tasks: the reading, and the reading with findings. Ordinary replies have none.
/// @param named  reads the text with the named operation; whether it came to something.
template <class Message, class Named>
void add(std::vector<Task>& tasks, const std::string& name, const std::string& text, Named named) {
    const auto check = [=] {
        if (!named(text) || !isDiagnosed<Message>(text)) throw std::runtime_error("there is something in the reply");
    };
    const auto run = [=] { return named(text); };
    tasks.push_back(
        {name, text.size(), {{"face", [=] { return isRead<Message>(text); }}, {"named", run, readingLimit}}, check});
    tasks.push_back({name + "/findings",
                     text.size(),
                     {{"face", [=] { return isDiagnosed<Message>(text); }}, {"named", run, findingsLimit}},
                     check});
}

/// A sample without a line that a printer of today would not have.
std::string without(std::string text, const std::string& element) {
    const std::size_t first = text.find("<" + element + ">");
    return text.erase(first, text.find('\n', first) - first);
}

std::string catalogue(std::size_t count) {
    const std::string text = sample("media");
    const std::size_t first = text.find("<card>");
    const std::size_t end = text.find("</card>") + std::strlen("</card>");
    std::string cards;
    for (std::size_t i = 0; i < count; ++i) cards += text.substr(first, end - first);
    return R"(<?xml version="1.0" encoding="UTF-8"?><media><cards>)" + cards + "</cards></media>";
}

std::vector<Task> tasks() {
    namespace messages = kvjxml::messages;
    std::vector<Task> all;
    add<messages::printer_id>(all, "printer_id", without(sample("printer_id"), "board_revision"),
                              [](const std::string& text) {
                                  Kavrin::KVPrinterInfo info{};
                                  return Kavrin::KVJPrinterIDParser().ParsePrinterInfo(text.c_str(), 0, info);
                              });
    add<messages::sensor_states>(all, "sensor_states", sample("get_sensor_status"), [](const std::string& text) {
        Kavrin::_KVPrinterSensorInfo states{};
        Kavrin::KVJSensorParser().ParseSensorStates(text.c_str(), 0, states);
        return states.doorOpen[0] != '\0';
    });
    for (const std::size_t count : {20U, 200U, 2000U}) {
        add<messages::media>(all, "media/" + std::to_string(count), catalogue(count), [](const std::string& text) {
            const auto media = Kavrin::MakeKVMedia();
            Kavrin::KVJMediaParser().GetMedia(text.front(), 0, *media);
            return !media->cards->empty();
        });
    }
    return all;
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
