#include "encode.h"

#include <iostream>
#include <nlohmann/json.hpp>
#include <utility>

#include "asked.h"
#include "asked_record.h"
#include "changes.h"
#include "compose_text.h"
#include "failure.h"
#include "messages/zeroed_record.h"
#include "needed.h"
#include "place.h"
#include "read_back.h"
#include "request_json.h"
#include "visible_text.h"

namespace kvj::tool {

ComposedRequest composed(const Request& request, const Choices& choices, const std::string& json,
                         const std::string& source, const EncodeOptions& options) {
    const nlohmann::json fields = requestJson(json, source, options.edits, *request.record);
    const Needed needed = neededFor(request, choices);
    Arrays arrays;
    Changes changes;
    const ZeroedRecord record(request, request.record->size);
    readAsked(Place(fields, source), request, needed, record.get(), arrays, changes);

    const Asked asked{request, choices, needed, fields, record.get()};
    std::string text = composeText(asked, changes);
    addLeftOut(asked, text, changes);
    addSeenOtherwise(asked, text, changes);
    if (changes.empty()) return {std::move(text), {}};
    const std::string lines = changes.lines(*request.record);
    if (!options.acceptsChanges) {
        throw Failure(ExitCode::wouldChange, visible(source) + ": the printer would get something else than is asked" +
                                                 lines + "\n--accept-changes sends it so");
    }
    return {std::move(text), visible(source) + ": sent otherwise than asked" + lines};
}

ExitCode encode(const Request& request, const Choices& choices, const Source& source, const EncodeOptions& options) {
    const ComposedRequest composed = tool::composed(request, choices, readBytes(source), source.name(), options);
    if (!composed.accepted.empty()) std::cerr << "kvjxml: " << composed.accepted << '\n';
    std::cout << composed.text;
    return ExitCode::done;
}

}  // namespace kvj::tool
