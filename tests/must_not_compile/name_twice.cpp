// error: a name occurs twice in its table
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({
    {"copies_done", number<&KVJobStatus::copiesDone>},
    {"uuid", text<&KVJobStatus::uuid>},
    {"copies_done", number<&KVJobStatus::copiesTotalSpecified>},
});
