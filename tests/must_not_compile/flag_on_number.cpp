// error: type 'bool&?' .*to a value of (unrelated )?type 'int'
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"copies_done", is<&KVJobStatus::copiesDone, "yes">}});
