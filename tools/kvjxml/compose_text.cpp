#include "compose_text.h"

#include <kvjxml_v1.h>

#include <new>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "MediaRecords.h"
#include "failure.h"
#include "fields/media.h"
#include "kvjxml_problem.hpp"
#include "media/tables.h"

namespace kvj::tool {

namespace {

using kvjxml::problem_kind;

std::string_view textOf(const kvjxml_v1_characters& it) { return {it.first, it.size}; }

/// The problems that the library reports.
struct Problems {
    std::vector<kvjxml::problem> all{};

    static int report(void* host, const kvjxml_v1_problem* it) {
        try {
            static_cast<Problems*>(host)->all.push_back(
                {static_cast<problem_kind>(it->kind), std::string(textOf(it->field)), std::string(textOf(it->path)),
                 std::string(textOf(it->asked)), std::string(textOf(it->sent))});
            return 1;
        } catch (const std::bad_alloc&) {
            return 0;
        }
    }
};

char* grow(void* text, std::size_t capacity) {
    try {
        static_cast<std::string*>(text)->resize(capacity);
        return static_cast<std::string*>(text)->data();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

kvjxml_v1_request requestOf(const Asked& asked) {
    kvjxml_v1_request request{};
    request.name = asked.request.name.data();
    request.record = asked.record;
    request.sections = asked.choices.sections;
    request.part = asked.choices.mode;
    request.card = asked.choices.card;
    request.direct_to_card = asked.choices.withoutTransfer;
    request.all_cards = asked.choices.allCards;
    request.whole = asked.choices.full;
    return request;
}

std::string run(const kvjxml_v1_request& request, Problems& problems) {
    constexpr std::size_t usual = 1024;
    std::string text(usual, '\0');
    std::size_t size = 0;
    const kvjxml_v1_room room{text.data(), text.size(), grow, &text};
    const kvjxml_v1_listener listener{Problems::report, &problems};
    if (kvjxml_v1_compose(&request, &room, &listener, &size) == kvjxml_v1_without_memory) throw std::bad_alloc();
    text.resize(size);
    return text;
}

/// Says which range a setting was given, of which it is outside.
std::string rangeOf(const Asked& asked, const std::string& field, Changes& changes) {
    const nlohmann::json& setting = asked.json[nlohmann::json::json_pointer(field).parent_pointer()];
    const auto end = [&](const char* name) { return setting.value(name, nlohmann::json()); };
    if (end("min") == 0 && end("max") == 0) {
        changes.note(
            "a printer sends some settings, such as those of its catalogue, without their ranges: give \"min\" and "
            "\"max\"");
        return R"(it has no range, its "min" and "max" are 0)";
    }
    return "its range is " + end("min").dump() + " to " + end("max").dump();
}

std::string reasonOf(const Asked& asked, const kvjxml::problem& problem, Changes& changes) {
    switch (problem.kind) {
        case problem_kind::no_word:
        case problem_kind::no_bit:
            return "the printer takes no word for that";
        case problem_kind::out_of_range:
            return rangeOf(asked, problem.field, changes);
        case problem_kind::sent_as_maximum:
            return "of a setting with a fraction the printer gets the maximum";
        case problem_kind::digits_lost:
            return "so many digits are not written";
        case problem_kind::no_character:
            return "it holds a control character";
        case problem_kind::read_otherwise:
            return "blanks at the ends or in a row get lost";
        default:
            return std::string(to_string(problem.kind));
    }
}

}  // namespace

std::string composeText(const Asked& asked, Changes& changes) {
    kvjxml_v1_request request = requestOf(asked);
    media::Cards cards{};
    if (asked.request.record == &recordType<Kavrin::_KVMediaInfo>) {
        const auto& all = *static_cast<const Kavrin::_KVMediaInfo*>(asked.record)->cards;
        cards = {all.data(), all.size()};
        request.record = &cards;
    }
    Problems problems;
    std::string text = run(request, problems);
    if (problems.all.empty()) return text;
    for (const kvjxml::problem& problem : problems.all) {
        if (problem.kind == problem_kind::nothing_to_send) {
            throw Failure(ExitCode::usage, "of the sections that are asked for, the record has nothing to write");
        }
        changes.add({problem.field, problem.asked, problem.sent, reasonOf(asked, problem, changes)});
    }
    request.accepts_changes = 1;
    return run(request, problems);
}

}  // namespace kvj::tool
