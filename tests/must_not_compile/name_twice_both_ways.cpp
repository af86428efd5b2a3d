// error: a name occurs twice in its table
#include "StatusRecords.h"
#include "foundation/both.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = bothWays<KVJobStatus>({
    {"copies_done", both::number<&KVJobStatus::copiesDone>},
    {"uuid", both::text<&KVJobStatus::uuid>},
    {"copies_done", both::number<&KVJobStatus::copiesTotalSpecified>},
});
