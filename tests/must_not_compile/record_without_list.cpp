// error: no matching function for call to .*fieldArray
#include "fields/list.h"

struct Point {
    int x;
};

const kvjxml::RecordType& type = kvjxml::recordType<Point>;
