// error: this field has no words
#include "kvjxml_words.hpp"

const auto code = kvjxml::code<&Kavrin::KVJobStatus::copiesDone>("printing");
