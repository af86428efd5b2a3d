#include <span>

#include "support/random_texts.h"
#include "texts.h"

namespace kvj::differential {

void compareRandom(Comparison& compare, std::uint64_t documents, std::uint64_t seed,
                   const std::vector<std::string>& samples) {
    constexpr std::uint64_t timesWithoutSample = 16;  // Samples take as much longer.
    std::string text;
    for (std::uint64_t i = 0; i < documents; ++i) {
        tests::Random random(seed * 0x2545F4914F6CDD1DU + i);
        if (!samples.empty() && i % timesWithoutSample == 0) {
            text = random.oneOf(std::span(samples));
            tests::tamper(random, text, samples);
        } else {
            text = tests::randomDocument(random);
            if (!samples.empty() && random.oneIn(4)) tests::tamper(random, text, samples);
        }
        compare(text);
    }
}

}  // namespace kvj::differential
