#include "changes.h"

#include <utility>

#include "field_at.h"
#include "secrets.h"
#include "visible_text.h"

namespace kvj::tool {

void Changes::add(Change change) {
    if (pointers_.insert(change.pointer).second) all_.push_back(std::move(change));
}

std::string Changes::lines(const RecordType& record) const {
    std::string text;
    for (const Change& change : all_) {
        const bool isHidden = isSecretAt(record, change.pointer);
        const auto shown = [&](const std::string& value) {
            return '"' + (isHidden ? std::string(masked) : visible(value)) + '"';
        };
        text.append("\n  \"").append(visible(change.pointer)).append("\": ");
        if (!change.asked.empty()) text.append(shown(change.asked)).append(" is asked, ");
        text.append(change.sent.empty() ? "nothing" : shown(change.sent));
        text.append(" would be sent: ").append(change.why);
    }
    for (const std::string& note : notes_) text.append("\n  ").append(note);
    return text;
}

}  // namespace kvj::tool
