// Compares what the library makes of texts with what TinyXML makes of them, in the locale of the environment. Prints
// how many it has compared, or the first that differs. See scripts/differential.
#include <pthread.h>

#include <charconv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "comparison.h"
#include "texts.h"

namespace {

using namespace kvj::differential;

struct Options {
    std::uint64_t length = 0;
    std::uint64_t tokens = 0;
    std::uint64_t random = 0;
    std::uint64_t seed = 1;
    std::uint64_t share = 0;
    std::uint64_t of = 1;
    bool condense = true;
    std::vector<std::string> samples;
};

[[noreturn]] void usage() {
    std::fputs(
        "differential [--length CHARACTERS] [--tokens TOKENS] [--random DOCUMENTS] [--seed NUMBER]\n"
        "             [--keep-blanks] [--share NUMBER OF] [FOLDER_OF_SAMPLES...]\n",
        stderr);
    std::exit(2);
}

std::uint64_t numberOf(const char* text) {
    std::uint64_t number = 0;
    if (text == nullptr) usage();
    const char* const end = text + std::strlen(text);
    if (const auto [last, error] = std::from_chars(text, end, number); error != std::errc() || last != end) usage();
    return number;
}

Options optionsOf(char** words) {
    Options options;
    const struct {
        std::string_view name;
        std::uint64_t& number;
    } numbers[] = {{"--length", options.length},
                   {"--tokens", options.tokens},
                   {"--random", options.random},
                   {"--seed", options.seed}};
    for (; *words != nullptr; ++words) {
        const std::string_view word = *words;
        if (word == "--keep-blanks") {
            options.condense = false;
        } else if (word == "--share") {
            options.share = numberOf(*++words);
            options.of = numberOf(*++words);
            if (options.share >= options.of) usage();
        } else if (!word.starts_with("--")) {
            for (const auto& entry : std::filesystem::directory_iterator(word)) {
                std::ifstream file(entry.path(), std::ios::binary);
                options.samples.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
            }
        } else {
            bool known = false;
            for (const auto& [name, number] : numbers) {
                if (word != name) continue;
                number = numberOf(*++words);
                known = true;
            }
            if (!known) usage();
        }
    }
    return options;
}

void* compareAll(void* given) {
    const auto& options = *static_cast<const Options*>(given);
    Comparison compare;
    compare.takeShare(static_cast<unsigned>(options.share), static_cast<unsigned>(options.of));
    std::uint64_t before = 0;
    const auto tell = [&](const char* what) {
        std::printf(" %llu %s", static_cast<unsigned long long>(compare.count() - before), what);
        before = compare.count();
    };
    for (const std::string& sample : options.samples) compare(sample);
    tell("samples,");
    if (options.length > 0) compareAllOfCharacters(compare, static_cast<unsigned>(options.length));
    tell("of characters,");
    if (options.tokens > 0) compareAllOfTokens(compare, static_cast<unsigned>(options.tokens));
    tell("of tokens,");
    compareRandom(compare, options.random, options.seed, options.samples);
    tell("random,");
    std::printf(" %llu in all\n", static_cast<unsigned long long>(compare.count()));
    return nullptr;
}

}  // namespace

int main(int /*argc*/, char** argv) {
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::fputs("the locale of the environment is not there\n", stderr);
        return 2;
    }
    Options options = optionsOf(argv + 1);
    TiXmlBase::SetCondenseWhiteSpace(options.condense);
    std::printf("%s, %s:", std::setlocale(LC_CTYPE, nullptr), options.condense ? "condensed" : "blanks kept");

    // TinyXML recurses at each level of a text.
    constexpr std::size_t stack = std::size_t{512} << 20;
    pthread_attr_t attributes;
    pthread_t thread{};
    pthread_attr_init(&attributes);
    if (pthread_attr_setstacksize(&attributes, stack) != 0 ||
        pthread_create(&thread, &attributes, compareAll, &options) != 0) {
        std::fputs("no thread with a large stack\n", stderr);
        return 2;
    }
    return pthread_join(thread, nullptr);
}
