// How the time to read a catalogue of media grows with its cards: in proportion. And the memory of the largest. See
// README.md.
#include <KVJMediaParser.h>
#include <malloc.h>
#include <sys/resource.h>

#include <cstdio>

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

/// What the catalogue keeps on the heap, and how far the process grew while it was read.
void printMemory(std::size_t count) {
    const std::string reply = catalogue(count);
    const auto media = Kavrin::MakeKVMedia();
    const std::size_t before = mallinfo2().uordblks;
    Kavrin::KVJMediaParser().GetMedia(reply.front(), 0, *media);
    const std::size_t kept = mallinfo2().uordblks - before;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%zu cards, each a record of %zu bytes: %zu bytes kept, process at most %ld KiB, reply %zu bytes\n",
                media->cards->size(), sizeof(Kavrin::_CardInfo), kept, usage.ru_maxrss, reply.size());
}

}  // namespace

int main(int argc, char** argv) {
    constexpr std::size_t largest = 20000;
    printMemory(largest);
    return runContest(argc, argv, tasks);
}
