#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/problems.h"
#include "foundation/request_text.h"
#include "kvjxml_compose.hpp"
#include "kvjxml_v1.h"
#include "media/tables.h"
#include "messages/request.h"

namespace kvj {

namespace {

// Hosts fill theirs; this one is what the table's row takes.
static_assert(sizeof(kvjxml::detail::cards) == sizeof(media::Cards));

Choices choicesOf(const kvjxml_v1_request& asked) {
    return {.sections = asked.sections,
            .card = asked.card,
            .mode = asked.part,
            .withoutTransfer = asked.direct_to_card != 0,
            .allCards = asked.all_cards != 0,
            .full = asked.whole != 0};
}

kvjxml_v1_characters charactersOf(std::string_view text) { return {text.data(), text.size()}; }

// It begins again once, to find the reasons. NOLINTNEXTLINE(misc-no-recursion)
kvjxml_v1_composing composeText(const kvjxml_v1_request& asked, const kvjxml_v1_room& where,
                                const kvjxml_v1_listener& listener, std::size_t& size) {
    const auto row = std::ranges::find(requests(), asked.name, &Request::name);
    if (row == requests().end()) return kvjxml_v1_unknown_request;

    std::vector<std::string_view> texts;
    texts.reserve(asked.texts_count);
    std::transform(asked.texts, asked.texts + asked.texts_count, std::back_inserter(texts),
                   [](const kvjxml_v1_characters& text) { return std::string_view(text.first, text.size); });
    Problems problems(texts);
    RequestText text({where.characters, where.capacity, where.more, where.host},
                     asked.accepts_changes != 0 ? nullptr : &problems);
    const bool isWritten = row->write(text.begin(row->root), asked.record, choicesOf(asked));
    size = text.end();

    if (!isWritten && asked.accepts_changes != 0) {
        // What cannot be sent in any way is refused, with its reasons.
        kvjxml_v1_request strict = asked;
        strict.accepts_changes = 0;
        return composeText(strict, where, listener, size);
    }
    std::vector<kvjxml::problem> found = problems.all();
    if (!isWritten && found.empty()) {
        found.push_back({kvjxml::problem_kind::nothing_to_send, {}, std::string("/").append(row->root), {}, {}});
    }
    for (const auto& [kind, field, path, value, sent] : found) {
        const kvjxml_v1_problem problem{static_cast<int>(kind), charactersOf(field), charactersOf(path),
                                        charactersOf(value), charactersOf(sent)};
        if (listener.report(listener.host, &problem) == 0) return kvjxml_v1_without_memory;
    }
    return found.empty() ? kvjxml_v1_composed : kvjxml_v1_refused;
}

}  // namespace

}  // namespace kvj

int kvjxml_v1_compose(const kvjxml_v1_request* request, const kvjxml_v1_room* room, const kvjxml_v1_listener* listener,
                      size_t* size) {
    try {
        return kvj::composeText(*request, *room, *listener, *size);
    } catch (...) {
        return kvjxml_v1_without_memory;  // Nothing else is thrown.
    }
}
