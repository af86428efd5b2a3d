// error: (invalid conversion from 'int' to 'char\*'|no matching function for call to 'readText')
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"copies_done", text<&KVJobStatus::copiesDone>}});
