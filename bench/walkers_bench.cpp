// What the public walkers take on elements of TinyXML's that a host has parsed itself. See README.md.
#include <KVJCapsParser.h>
#include <KVJConfigParser.h>
#include <KVJMediaParser.h>
#include <KVJStatusParser.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "contest.h"

namespace {

using namespace kvj::bench;

/// A walk over the root element of a sample; it is its own contender, for a run with another library to compare with.
template <class Walk>
Task walking(const char* name, Walk walk) {
    const std::string text = sample(name);
    const auto document = std::make_shared<TiXmlDocument>();
    document->Parse(text.c_str());
    return {name, text.size(), {{"walker", [=] { return walk(document->RootElement()); }}}};
}

std::vector<Task> tasks() {
    // The two lines that reading a ribbon's name writes are for a terminal, not for a measurement.
    if (std::freopen("/dev/null", "w", stderr) == nullptr) return {};
    const auto status = std::make_shared<Kavrin::KVGeneralStatus>();
    const auto job = std::make_shared<Kavrin::KVJobStatus>();
    const auto caps = std::make_shared<Kavrin::_Capabilities>();
    const auto configuration = std::make_shared<Kavrin::_KVConfiguration>();
    return {
        walking("get_general_status",
                [=](TiXmlElement* root) { return Kavrin::KVJStatusParser().parseStatus(root, *status); }),
        walking("get_job_status",
                [=](TiXmlElement* root) { return Kavrin::KVJStatusParser().parseJobStatus(root, *job); }),
        // Without arrays the lists are counted only.
        walking("capabilities",
                [=](TiXmlElement* root) {
                    *caps = {};
                    return Kavrin::KVJCapsParser().parseCapabilities(root, *caps);
                }),
        walking("configuration", [parser = std::make_shared<Kavrin::KVJConfigParser>(), configuration](
                                     TiXmlElement* root) { return parser->parseConfiguration(root, *configuration); }),
        walking("media", [](TiXmlElement* root) {
            const auto media = Kavrin::MakeKVMedia();
            Kavrin::KVJMediaParser().parseMedia(root, *media);
            return media->cards->size() > 1;
        })};
}

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
