// The lists that the other sources spoil, as they have to be.
#include "fields/list.h"

using namespace kvj;

struct Point {
    int x;
    int y;
    int z;
};
template <>
inline constexpr FieldList<&Point::x, &Point::y, &Point::z> kvj::fields<Point>{};

struct Padded {
    char letter[1];
    bool isSet;
    int number;
};
template <>
inline constexpr FieldList<&Padded::letter, &Padded::isSet, &Padded::number> kvj::fields<Padded>{};

const RecordType& point = recordType<Point>;
const RecordType& padded = recordType<Padded>;
