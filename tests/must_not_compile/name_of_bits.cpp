// error: this field has several words at once: ask for its names
#include "kvjxml_words.hpp"

const Kavrin::_Capabilities caps{};
const auto word = kvjxml::name<&Kavrin::_Capabilities::imageSharpeningLevels>(caps);
