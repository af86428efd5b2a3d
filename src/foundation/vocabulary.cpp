#include "foundation/vocabulary.h"

#include "FoundationRecords.h"

namespace Kavrin {

namespace {
constexpr auto coercivities = kvj::Words(kvj::coercivitiesWritten).rows;
}
const char* const COERCIVITYTYPES[3] = {coercivities[0].word, coercivities[1].word, coercivities[2].word};

}  // namespace Kavrin
