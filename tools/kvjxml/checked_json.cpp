#include "checked_json.h"

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "place.h"
#include "xml_text.h"

namespace kvj::tool {

namespace {

using SortedJson = nlohmann::json;

/// Follows the parser through the text and checks what it reads.
class Check {
public:
    explicit Check(const std::string& source) : source_(&source) {}

    void operator()(SortedJson::parse_event_t event, const SortedJson& parsed) {
        switch (event) {
            case SortedJson::parse_event_t::object_start:
            case SortedJson::parse_event_t::array_start:
                levels_.push_back({.isList = event == SortedJson::parse_event_t::array_start});
                break;
            case SortedJson::parse_event_t::key:
                levels_.back().key = parsed.get<std::string>();
                if (!levels_.back().keys.insert(*levels_.back().key).second) refuse("occurs twice");
                break;
            case SortedJson::parse_event_t::object_end:
            case SortedJson::parse_event_t::array_end:
                levels_.pop_back();
                endValue();
                break;
            case SortedJson::parse_event_t::value:
                if (parsed.is_string()) checkText(parsed.get_ref<const std::string&>());
                endValue();
                break;
        }
    }

    /// @throws Failure for the place that the parser has come to.
    [[noreturn]] void refuse(const std::string& reason) const {
        SortedJson::json_pointer pointer;
        for (const auto& level : levels_) {
            if (level.isList) {
                pointer /= level.index;
            } else if (level.key) {
                pointer /= *level.key;
            }
        }
        tool::refuse(*source_, pointer, reason);
    }

private:
    /// An object or a list that has not ended.
    struct Level {
        bool isList;
        std::size_t index = 0;             ///< of the entry that comes next, or is being read
        std::optional<std::string> key{};  ///< of the value that is being read
        std::set<std::string> keys{};      ///< all so far
    };

    void checkText(const std::string& text) const {
        if (const auto character = firstNotOfXml(text); !character.empty()) {
            refuse("holds " + character + ", a character that XML does not have");
        }
    }

    void endValue() {
        if (levels_.empty()) return;
        ++levels_.back().index;
        levels_.back().key.reset();
    }

    const std::string* source_;
    std::vector<Level> levels_;
};

}  // namespace

SortedJson checkedJson(const std::string& text, const std::string& source) {
    Check check(source);
    try {
        return SortedJson::parse(text, [&](int /*depth*/, SortedJson::parse_event_t event, SortedJson& parsed) {
            check(event, parsed);
            return true;
        });
    } catch (const SortedJson::parse_error& error) {
        check.refuse("is not JSON at byte " + std::to_string(error.byte));
    } catch (const SortedJson::out_of_range&) {  // A number that not even a double can hold.
        check.refuse("is out of range");
    }
}

}  // namespace kvj::tool
