// error: (initialization of reference of type|initializer list argument to) 'const (kvjxml::)?Row<Kavrin::KVJobStatus>
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvjxml;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"warning", number<&Kavrin::KVGeneralStatus::warning>}});
