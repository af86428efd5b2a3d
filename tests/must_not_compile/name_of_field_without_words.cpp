// error: this field has no words
#include "kvjxml_words.hpp"

const auto words = kvjxml::name<&Kavrin::KVGeneralStatus::alarms>(0x8002);
