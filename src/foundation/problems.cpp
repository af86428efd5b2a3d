#include "foundation/problems.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace kvj {

namespace {

using kvjxml::problem;
using kvjxml::problem_kind;

constexpr std::size_t noElement = static_cast<std::size_t>(-1);

/// The elements of one parent that have the same name.
struct Namesakes {
    std::string_view name;
    std::size_t count;
};

/// Where an element stands.
struct Place {
    std::size_t parent = noElement;
    std::size_t namesakes = 0;  ///< which of them all
    std::size_t number = 0;     ///< which one among these
};

/// Where all elements stand.
class Places {
public:
    explicit Places(const std::vector<Opened>& elements) : elements_(elements) {
        struct Level {
            std::size_t last = noElement;
            std::vector<std::size_t> namesakes;  ///< of the present parent
        };
        std::vector<Level> levels;
        places_.reserve(elements.size());
        for (const Opened& element : elements) {
            levels.resize(element.depth + 1);  // Deeper ones are closed.
            Level& level = levels.back();
            auto which = std::ranges::find(level.namesakes, element.name, [&](std::size_t i) { return all_[i].name; });
            if (which == level.namesakes.end()) {
                which = level.namesakes.insert(which, all_.size());
                all_.push_back({element.name, 0});
            }
            level.last = places_.size();
            const std::size_t parent = element.depth == 0 ? noElement : levels[element.depth - 1].last;
            places_.push_back({parent, *which, ++all_[*which].count});
        }
    }

    [[nodiscard]] std::string pathOf(std::size_t element) const {
        std::string path;
        for (const std::size_t i : fromRoot(element)) {
            const Namesakes& namesakes = all_[places_[i].namesakes];
            path.append("/").append(namesakes.name);
            if (namesakes.count > 1) path.append("[").append(std::to_string(places_[i].number)).append("]");
        }
        return path;
    }

    [[nodiscard]] std::string pointerOf(std::size_t element) const {
        std::string pointer;
        for (const std::size_t i : fromRoot(element)) {
            const auto& [name, depth, row, entry] = elements_[i];
            if (entry >= 0) pointer.append("/").append(std::to_string(entry));
            if (row != nullptr && !row->field.empty()) pointer.append("/").append(row->field.name);
        }
        return pointer;
    }

private:
    [[nodiscard]] std::vector<std::size_t> fromRoot(std::size_t element) const {
        std::vector<std::size_t> line;
        for (; element != noElement; element = places_[element].parent) line.push_back(element);
        std::ranges::reverse(line);
        return line;
    }

    const std::vector<Opened>& elements_;
    std::vector<Place> places_;
    std::vector<Namesakes> all_;
};

}  // namespace

void Problems::found(problem_kind kind, std::string_view asked, std::string_view sent, std::string_view field,
                     std::string_view path) {
    found_.push_back({{kind, std::string(field), std::string(path), std::string(asked), std::string(sent)},
                      elements_.empty() ? noElement : elements_.size() - 1});
}

void Problems::leftOut(problem_kind kind, std::string_view asked, std::size_t depth, std::string_view name,
                       const Description* row) {
    std::size_t parent = elements_.size() - 1;
    while (elements_[parent].depth >= depth) --parent;
    found(kind, asked, {}, {}, std::string("/").append(name));
    found_.back().element = parent;
    if (row != nullptr) found_.back().problem.field = std::string("/").append(row->field.name);
}

std::string_view Problems::whole(const char* text) const {
    const auto known = std::ranges::find(hostTexts_, text, [](std::string_view host) { return host.data(); });
    return known == hostTexts_.end() ? std::string_view(text) : *known;
}

std::vector<problem> Problems::all() const {
    std::vector<problem> problems;
    if (found_.empty()) return problems;
    const Places places(elements_);
    problems.reserve(found_.size());
    for (const auto& [ends, element] : found_) {
        problems.push_back({ends.kind, places.pointerOf(element) + ends.field, places.pathOf(element) + ends.path,
                            ends.asked, ends.sent});
    }
    return problems;
}

}  // namespace kvj
