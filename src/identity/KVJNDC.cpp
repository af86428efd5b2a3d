#include "KVJNDC.h"

#include "foundation/reply.h"
#include "foundation/values.h"

namespace Kavrin {

bool KVJNDC::GetLaminatorResponse(const wchar_t& reply, int length, char* response) {
    constexpr int capacity = 512;
    if (response == nullptr) return false;
    return kvj::readText(kvj::Reply(reply, length).root("lam_ndc_rsp"), response, capacity);
}

}  // namespace Kavrin
