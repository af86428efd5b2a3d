// error: a field of the record is missing in its list
#include "fields/list.h"

using namespace kvj;

struct Point {
    int x;
    int y;
    int z;
};
template <>
inline constexpr FieldList<&Point::x, &Point::y> kvj::fields<Point>{};

const RecordType& type = recordType<Point>;
