// error: a field of the record is missing in its list
#include "fields/list.h"

using namespace kvj;

// Without `isSet` the record has the same size, and `number` the same place.
struct Padded {
    char letter[1];
    bool isSet;
    int number;
};
template <>
inline constexpr FieldList<&Padded::letter, &Padded::number> kvj::fields<Padded>{};

const RecordType& type = recordType<Padded>;
