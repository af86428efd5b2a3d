#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/problems.h"
#include "foundation/request_text.h"
#include "kvjxml_compose.hpp"
#include "media/tables.h"
#include "messages/request.h"

namespace kvj {

namespace {

using namespace kvjxml::detail;  // what passes between host and library

// Hosts fill theirs; this one is what the table's row takes.
static_assert(sizeof(cards) == sizeof(media::Cards));

Choices choicesOf(const request& asked) {
    const auto& [directToCard, part, card, cards, acceptsChanges] = asked.chosen;
    return {.sections = asked.sections,
            .card = static_cast<int>(card),
            .mode = static_cast<int>(part),
            .withoutTransfer = directToCard,
            .allCards = cards == kvjxml::catalogue_cards::all,
            .full = asked.whole};
}

view viewOf(std::string_view text) { return {text.data(), text.size()}; }

result composeText(const request& asked, const room& where, const listener& listens, std::size_t& size) {
    const auto row = std::ranges::find(requests(), asked.name, &Request::name);
    if (row == requests().end()) return result::no_request;

    std::vector<std::string_view> texts;
    texts.reserve(asked.text_count);
    std::transform(asked.texts, asked.texts + asked.text_count, std::back_inserter(texts),
                   [](const view& text) { return std::string_view(text.characters, text.size); });
    Problems problems(texts);
    RequestText text({where.characters, where.capacity, where.more, where.host},
                     asked.chosen.accepts_changes ? nullptr : &problems);
    const bool isWritten = row->write(text.begin(row->root), asked.record, choicesOf(asked));
    size = text.end();

    std::vector<kvjxml::problem> found = problems.all();
    if (!isWritten && found.empty()) {
        found.push_back({kvjxml::problem_kind::nothing_to_send, {}, std::string("/").append(row->root), {}, {}});
    }
    for (const auto& [kind, field, path, value, sent] : found) {
        const kvjxml::detail::found problem{static_cast<int>(kind), viewOf(field), viewOf(path), viewOf(value),
                                            viewOf(sent)};
        if (!listens.report(listens.host, &problem)) return result::no_memory;
    }
    return found.empty() ? result::composed : result::refused;
}

}  // namespace

}  // namespace kvj

kvjxml::detail::result kvjxml::kvjxml_v1_compose(const detail::request* request, const detail::room* room,
                                                 const detail::listener* listener, std::size_t* size) noexcept {
    try {
        return kvj::composeText(*request, *room, *listener, *size);
    } catch (...) {
        return detail::result::no_memory;  // Nothing else is thrown.
    }
}
