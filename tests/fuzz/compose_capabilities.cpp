// What a printer can do.
#include <KVJSetCaps.h>

#include "composing.h"
#include "fields/capabilities.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetCaps;
using kvj::fuzz::Values;

void capabilities(Values& values) {
    const int mode = values.number();
    const bool directToCard = values.flag();
    kvj::fuzz::Arrays arrays;
    const auto caps = kvj::fuzz::recordOf<Kavrin::_Capabilities>(values, arrays);
    kvj::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetCapabilities(*caps, out, capacity, mode, directToCard);
    });
}

constexpr kvj::fuzz::Operation operations[] = {{"SetCapabilities", capabilities}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
