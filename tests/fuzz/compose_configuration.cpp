// How a printer is set up.
#include <KVJSetConfig.h>

#include "composing.h"
#include "fields/configuration.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetConfig;
using kvj::fuzz::Values;

void configuration(Values& values) {
    const int mask = values.number();
    const int card = values.number();
    const bool skipTransfer = values.flag();
    kvj::fuzz::Arrays arrays;
    const auto cfg = kvj::fuzz::recordOf<Kavrin::_KVConfiguration>(values, arrays);
    kvj::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return composer.SetConfiguration(*cfg, out, capacity, mask, card, skipTransfer);
    });
}

constexpr kvj::fuzz::Operation operations[] = {{"SetConfiguration", configuration}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
