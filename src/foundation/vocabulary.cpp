#include "foundation/vocabulary.h"

#include "FoundationRecords.h"

namespace Kavrin {

const char* const COERCIVITYTYPES[3] = {"none", "low", "high"};

}  // namespace Kavrin
