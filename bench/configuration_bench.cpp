// What reading and composing a whole configuration costs. See README.md.
#include <KVJConfigParser.h>
#include <KVJSetConfig.h>

#include <memory>

#include "reading.h"

namespace {

using namespace kvj::bench;

constexpr long everything = 0xFFFFFF;

struct Configuration {
    Kavrin::_KVConfiguration configuration{};
    Kavrin::_KVConfiguration& begin() { return configuration; }
    [[nodiscard]] bool isFilled() const { return configuration.standbyTimeout != 0; }
};

void read(const std::string& reply, Kavrin::_KVConfiguration& configuration) {
    Kavrin::KVJConfigParser().GetConfiguration(reply.c_str(), 0, configuration);
}

/// The whole of it, the copy in a file included.
bool compose(const Kavrin::_KVConfiguration& configuration, std::vector<wchar_t>& out) {
    return Kavrin::KVJSetConfig().SetConfiguration(configuration, out.data(), static_cast<int>(out.size()), everything,
                                                   0, false);
}

/// The same without the file, which leaves the printing to the host.
bool composeWithoutCopy(const Kavrin::_KVConfiguration& configuration, std::vector<wchar_t>& out) {
    Kavrin::KVJSetConfig document;
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    TiXmlElement* root = document.LinkEndChild(new TiXmlElement("configuration"))->ToElement();
    return document.addConfiguration(root, configuration, everything, 0) && print(document, out);
}

std::vector<Task> tasks() {
    // The two lines that reading a ribbon's name writes are for a terminal, not for a measurement.
    if (std::freopen("/dev/null", "w", stderr) == nullptr) return {};
    const std::string text = sample("configuration");
    const auto configuration = std::make_shared<Kavrin::_KVConfiguration>();
    const auto out = std::make_shared<std::vector<wchar_t>>(65536);
    read(text, *configuration);
    configuration->lamination.topLaminate.laminatePresent = true;
    Kavrin::KVJSetConfig model;
    if (!model.SetConfiguration(*configuration, out->data(), static_cast<int>(out->size()), everything, 0, false)) {
        return {};
    }
    const std::wstring composed = out->data();
    const std::string request(composed.begin(), composed.end());
    const auto byHand = std::make_shared<ByHand>(model);
    // The ranges' numbers and the two lines for the ribbon are much of the time, and no part of parsing.
    constexpr Limits limits{.bare = 0.15};
    return {reading<Configuration>(
                "read", text.size(), [=](auto& record) { read(text, record); },
                [=](const Rival& rival, auto& record) { rival.readConfiguration(text, record); },
                [=] { return parse(text.c_str()); }, limits),
            {"compose",
             request.size(),
             {{"without_copy", [=] { return composeWithoutCopy(*configuration, *out); }},
              {"floor", [=] { return byHand->compose(*out) && composed == out->data(); }, 1.10},
              {"with_copy", [=] { return compose(*configuration, *out); }}}}};
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
