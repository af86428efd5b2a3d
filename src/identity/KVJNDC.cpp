#include "KVJNDC.h"

#include "KVJHelper.h"
#include "foundation/reply.h"

namespace Kavrin {

bool KVJNDC::GetLaminatorResponse(const wchar_t& reply, int length, char* response) {
    constexpr int capacity = 512;
    if (response == nullptr) return false;
    return KVJHelper::GetString(kvjxml::Reply(reply, length).root("lam_ndc_rsp"), *response, capacity);
}

}  // namespace Kavrin
