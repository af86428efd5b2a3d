// error: (initialization of reference of type|initializer list argument to) 'const (kvj::)?Row<Kavrin::KVJobStatus>
#include "StatusRecords.h"
#include "foundation/read_rules.h"

using namespace kvj;
using Kavrin::KVJobStatus;

constexpr auto table = rows<KVJobStatus>({{"warning", number<&Kavrin::KVGeneralStatus::warning>}});
