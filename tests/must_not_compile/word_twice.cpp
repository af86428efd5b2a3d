// error: a word occurs twice in its table
#include "foundation/words.h"

constexpr kvj::WordTable table{0, {{"off", 0}, {"on", 1}, {"off", 2}}};
