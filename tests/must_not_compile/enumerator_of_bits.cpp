// error: this field has several words at once: ask for its names
#include "kvjxml_words.hpp"

const auto level = kvjxml::as_enum<&Kavrin::_Capabilities::imageSharpeningLevels>(2);
