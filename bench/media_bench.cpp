// How the time to read a catalogue of media grows with its cards: in proportion. See README.md.
#include <KVJMediaParser.h>
#include <KVJSetMedia.h>

#include "contest.h"

namespace {

using namespace kvjxml::bench;

/// A catalogue of `count` cards, all like the first of the sample.
std::string catalogue(std::size_t count) {
    const std::string text = sample("media");
    const std::size_t first = text.find("<card>");
    const std::size_t end = text.find("</card>") + sizeof "</card>" - 1;
    std::string cards;
    for (std::size_t i = 0; i < count; ++i) cards += text.substr(first, end - first);
    return R"(<?xml version="1.0" encoding="UTF-8"?><media><cards>)" + cards + "</cards></media>";
}

bool read(const std::string& reply, std::size_t count) {
    const auto media = Kavrin::MakeKVMedia();
    Kavrin::KVJMediaParser().GetMedia(reply.front(), 0, *media);
    return media->cards->size() == count;
}

Task reading(std::size_t count) {
    const std::string text = catalogue(count);
    return {std::to_string(count),
            text.size(),
            {{"library", [=] { return read(text, count); }},
             {"bare", [=] { return parse(text.c_str(), withPositions); }},
             {"floor", [=] { return parse(text.c_str(), withoutPositions); }}}};
}

std::vector<Task> tasks() { return {reading(20), reading(200), reading(2000), reading(20000)}; }

}  // namespace

int main(int argc, char** argv) { return runContest(argc, argv, tasks); }
