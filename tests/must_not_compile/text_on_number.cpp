// error: subscripted value is (neither|not an) array
#include "StatusRecords.h"
#include "foundation/getters.h"

using namespace kvjxml;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"copies_done", text<&KVJobStatus::copiesDone>}});
