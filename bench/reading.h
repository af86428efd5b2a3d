/// @file reading.h
/// The task of reading a reply into a record: the library against TinyXML's parser alone, and against the same written
/// by hand on other parsers.
#ifndef KVJXML_BENCH_READING_H
#define KVJXML_BENCH_READING_H

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "comparison.h"
#include "contest.h"
#include "rivals.h"

namespace kvj::bench {

/// How much of the others' time the library may take.
struct Limits {
    double bare = 0.12;
    double pugixml = 0.85;
    double others = 1;
};

/// @tparam Target  holds what is read: `begin()` gives the record as a host has it before a reply, and `isFilled()` is
///                 true when that has the values of the reply that are looked at in each run.
/// @param library  reads the reply with the library into a record.
/// @param byHand   reads it with one of the others.
/// @param bare     has TinyXML parse it.
template <class Target, class Library, class ByHand>
Task reading(std::string name, std::size_t bytes, Library library, ByHand byHand, std::function<bool()> bare,
             Limits limits = {}) {
    const auto run = [](auto read) {
        return [=, target = std::make_shared<Target>()] {
            read(target->begin());
            return target->isFilled();
        };
    };
    Task task{std::move(name), bytes, {{"library", run(library)}, {"bare", std::move(bare), limits.bare}}};
    for (const Rival& rival : rivals()) {
        const bool isPugixml = rival.name == std::string_view("pugixml");
        task.contenders.push_back({rival.name, run([=](auto& record) { byHand(rival, record); }),
                                   isPugixml ? limits.pugixml : limits.others});
    }
    task.check = [=] {
        Target expected;
        auto& ours = expected.begin();
        library(ours);
        if (!expected.isFilled()) throw std::runtime_error("the library did not read the reply");
        for (const Rival& rival : rivals()) {
            Target target;
            auto& theirs = target.begin();
            byHand(rival, theirs);
            compare(rival.name, theirs, ours);
        }
    };
    return task;
}

}  // namespace kvj::bench

#endif
