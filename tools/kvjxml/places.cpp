#include "places.h"

#include <vector>

#include "face/joined.h"
#include "messages/message.h"
#include "messages/request.h"

namespace kvj::tool {

namespace {

using Places = std::vector<ElementPlace>;

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void collect(const ElementPlace& around, std::span<const DescribedRow> rows, Places& places) {
    for (const DescribedRow& row : rows) {
        const ElementPlace place{around.path + "/" + std::string(row.name), &row, around.direction, around.operation};
        places.push_back(place);
        collect(place, row.description.group, places);
    }
}

Places allPlaces() {
    Places places;
    for (const Message& message : messages()) {
        const ElementPlace root{joined({"/", message.root}), nullptr, Direction::read, message.operation};
        collect(root, message.table, places);
    }
    for (const Request& request : requests()) {
        const ElementPlace root{joined({"/", request.root}), nullptr, Direction::written, request.operation};
        collect(root, request.table, places);
    }
    return places;
}

}  // namespace

std::span<const ElementPlace> elementPlaces() {
    static const Places places = allPlaces();
    return places;
}

}  // namespace kvj::tool
