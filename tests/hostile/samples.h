/// @file samples.h
/// The example replies, from which broken and hostile ones are made.
#ifndef KVJXML_TESTS_HOSTILE_SAMPLES_H
#define KVJXML_TESTS_HOSTILE_SAMPLES_H

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/files.h"

namespace kvj::tests {

struct Sample {
    std::string root;  ///< the name of the root element, and of the file
    std::string text;
};

/// All of them, by name.
inline std::vector<Sample> samples() {
    std::vector<Sample> list;
    for (const auto& file : std::filesystem::directory_iterator(EXAMPLES_DIR "/replies")) {
        list.push_back({file.path().stem().string(), contentOf(file.path())});
    }
    std::ranges::sort(list, {}, &Sample::root);
    return list;
}

inline std::string sampleOf(const std::string& root) { return contentOf(EXAMPLES_DIR "/replies/" + root + ".xml"); }

}  // namespace kvj::tests

#endif
