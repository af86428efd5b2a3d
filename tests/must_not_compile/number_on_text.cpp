// error: no matching function for call to 'readNumber
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"uuid", number<&KVJobStatus::uuid>}});
