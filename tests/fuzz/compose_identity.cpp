// Who a printer is to be.
#include <KVJSetPrinterInfo.h>

#include "composing.h"
#include "fields/identity.h"
#include "foundation/request.h"
#include "records.h"

namespace {

using Composer = Kavrin::KVJSetPrinterInfo;
using kvj::fuzz::Values;

template <class Compose>
void check(Values& values, Compose compose) {
    kvj::fuzz::Arrays arrays;
    const auto info = kvj::fuzz::recordOf<Kavrin::KVPrinterInfo>(values, arrays);
    kvj::fuzz::checkWide<Composer>(values, [&](Composer& composer, wchar_t* out, int capacity) {
        return compose(composer, *info, out, capacity);
    });
}

void sections(Values& values) {
    const int mask = values.number();
    check(values, [&](Composer& composer, const auto& info, wchar_t* out, int capacity) {
        return composer.SetPrinterInfo(info, out, capacity, mask);
    });
}

void whole(Values& values) {
    check(values, [](Composer& composer, const auto& info, wchar_t* out, int capacity) {
        return composer.addPrinterInfo(kvj::beginRequest(composer, "printer_id"), info) &&
               composer.saveJob(out, capacity);
    });
}

constexpr kvj::fuzz::Operation operations[] = {{"SetPrinterInfo", sections}, {"addPrinterInfo", whole}};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kvj::fuzz::run(operations, data, size);
}
