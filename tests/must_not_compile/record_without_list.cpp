// error: no matching function for call to .*fieldArray
#include "fields/list.h"

struct Point {
    int x;
};

const kvj::RecordType& type = kvj::recordType<Point>;
