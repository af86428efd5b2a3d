// error: this field has one word at a time: ask for its name
#include "kvjxml_words.hpp"

const auto words = kvjxml::names<&Kavrin::KVGeneralStatus::printerState>(5);
