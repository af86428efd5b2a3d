// error: this field is a list: give one of its codes
#include "kvjxml_words.hpp"

const Kavrin::_Capabilities caps{};
const auto word = kvjxml::name<&Kavrin::_Capabilities::graphicFormats>(caps);
