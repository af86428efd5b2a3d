// error: a field of the record is missing in its list
#include "fields/list.h"

using namespace kvjxml;

struct Point {
    int x;
    int y;
    int z;
};
template <>
inline constexpr FieldList<&Point::x, &Point::y> kvjxml::fields<Point>{};

const RecordType& type = recordType<Point>;
