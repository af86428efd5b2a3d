// How a printer is set up.
#include <KVJSetConfig.h>

#include "composing.h"
#include "fields/configuration.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetConfig;
using kvjxml::fuzz::Values;

void configuration(Values& values) {
    const int mask = values.number();
    const int card = values.number();
    const bool skipTransfer = values.flag();
    kvjxml::fuzz::Arrays arrays;
    const auto cfg = kvjxml::fuzz::recordOf<Kavrin::_KVConfiguration>(values, arrays);
    kvjxml::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetConfiguration(*cfg, out, capacity, mask, card, skipTransfer);
    });
}

constexpr kvjxml::fuzz::Operation operations[] = {{"SetConfiguration", configuration}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvjxml::fuzz::run(operations, data, size);
}
