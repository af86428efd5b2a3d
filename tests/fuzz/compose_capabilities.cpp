// What a printer can do.
#include <KVJSetCaps.h>

#include "composing.h"
#include "fields/capabilities.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetCaps;
using kvjxml::fuzz::Values;

void capabilities(Values& values) {
    const int mode = values.number();
    const bool directToCard = values.flag();
    kvjxml::fuzz::Arrays arrays;
    const auto caps = kvjxml::fuzz::recordOf<Kavrin::_Capabilities>(values, arrays);
    kvjxml::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetCapabilities(*caps, out, capacity, mode, directToCard);
    });
}

constexpr kvjxml::fuzz::Operation operations[] = {{"SetCapabilities", capabilities}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvjxml::fuzz::run(operations, data, size);
}
