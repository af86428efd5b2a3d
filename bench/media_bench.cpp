// How the time to read a catalogue of media grows with its cards: in proportion. And the memory of the largest. See
// README.md.
#include <KVJMediaParser.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "allocations.h"
#include "reading.h"

namespace {

using namespace kvj::bench;

/// A catalogue of `count` cards, all like the first of the sample.
std::string catalogue(std::size_t count) {
    const std::string text = sample("media");
    const std::size_t first = text.find("<card>");
    const std::size_t end = text.find("</card>") + sizeof "</card>" - 1;
    std::string cards;
    for (std::size_t i = 0; i < count; ++i) cards += text.substr(first, end - first);
    return R"(<?xml version="1.0" encoding="UTF-8"?><media><cards>)" + cards + "</cards></media>";
}

/// A new catalogue for each reply; the one before is released.
struct Catalogue {
    Kavrin::KVMediaPointer media;
    Kavrin::_KVMediaInfo& begin() {
        media = Kavrin::MakeKVMedia();
        return *media;
    }
    [[nodiscard]] bool isFilled() const { return !media->cards->empty() && media->cards->back()->calTable == 3; }
};

Task readingCatalogue(std::size_t count) {
    const auto reply = std::make_shared<const std::string>(catalogue(count));
    return reading<Catalogue>(
        std::to_string(count), reply->size(),
        [=](auto& media) { Kavrin::KVJMediaParser().GetMedia(reply->front(), 0, media); },
        [=](const Rival& rival, auto& media) { rival.readCatalogue(*reply, media); },
        [=] { return parse(reply->c_str()); });
}

std::vector<Task> tasks() {
    return {readingCatalogue(20), readingCatalogue(200), readingCatalogue(2000), readingCatalogue(20000)};
}

/// What the catalogue keeps on the heap, and what is there besides while it is read.
void printMemory(std::size_t count) {
    const std::string reply = catalogue(count);
    const auto media = Kavrin::MakeKVMedia();
    const HeapUse use;
    Kavrin::KVJMediaParser().GetMedia(reply.front(), 0, *media);
    std::printf("%zu cards, each a record of %zu bytes: %zu bytes kept, at most %zu while reading, reply %zu bytes\n",
                media->cards->size(), sizeof(Kavrin::_CardInfo), use.kept(), use.peak(), reply.size());
}

}  // namespace

int main(int argc, char** argv) {
    constexpr std::size_t largest = 20000;
    printMemory(largest);
    return runContest(argc, argv, tasks);
}
