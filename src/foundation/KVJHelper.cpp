#include "KVJHelper.h"

#include <tinyxml.h>

#include <algorithm>

#include "foundation/convert.h"
#include "foundation/element.h"
#include "foundation/tags.h"
#include "foundation/vocabulary.h"

using kvjxml::textOf;
namespace convert = kvjxml::convert;

namespace {

/// Reads an element's text into `value`; an element without text leaves it alone.
template <class Value, class Convert>
bool store(const TiXmlElement* element, Value& value, Convert convert) {
    const char* content = textOf(element);
    if (content != nullptr) value = static_cast<Value>(convert(content));
    return content != nullptr;
}

const char* attributeOf(const TiXmlElement* element, const char* name) {
    return element == nullptr || name == nullptr ? nullptr : element->Attribute(name);
}

}  // namespace

// ---- Element text to value ----

bool KVJHelper::GetNumber(TiXmlElement* element, int& value, bool /*ignored*/) {
    return store(element, value, convert::toInt);
}

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned int& value, bool /*ignored*/) {
    return store(element, value, convert::toInt);
}

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned short& value, bool /*ignored*/) {
    return store(element, value, convert::toInt);
}

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned long& value, bool /*ignored*/) {
    return store(element, value,
                 [](const char* content) { return static_cast<unsigned short>(convert::toInt(content)); });
}

bool KVJHelper::GetNumber(TiXmlElement* element, long& value, bool /*ignored*/) {
    return store(element, value, convert::toLong);
}

bool KVJHelper::GetNumber(TiXmlElement* element, float& value, bool /*ignored*/) {
    return store(element, value, convert::toFloat);
}

bool KVJHelper::GetString(TiXmlElement* element, char& first, int capacity) {
    const char* content = textOf(element);
    return content != nullptr && convert::copy(content, &first, capacity);
}

bool KVJHelper::GetBool(TiXmlElement* element, char& value) { return store(element, value, convert::isTrue); }

bool KVJHelper::GetBool(TiXmlElement* element, bool& value) {
    value = false;
    return store(element, value, convert::isTrue);
}

bool KVJHelper::GetPhysicalAddress(TiXmlElement* element, unsigned char* address) {
    const char* content = textOf(element);
    if (content == nullptr || address == nullptr) return false;
    std::ranges::copy(convert::toHardwareAddress(content), address);
    return true;
}

// ---- Attribute to value ----

bool KVJHelper::GetInt(TiXmlElement* element, char* name, int& value) {
    const char* content = attributeOf(element, name);
    return content != nullptr && convert::scanInt(content, value);
}

bool KVJHelper::GetNumberFromAttr(TiXmlElement* element, char* name, int& value) {
    return GetInt(element, name, value);
}

bool KVJHelper::GetNumberFromAttr(TiXmlElement* element, char* name, float& value) {
    // TinyXML's own query for such a number follows the process's locale.
    const char* content = attributeOf(element, name);
    return content != nullptr && convert::scanFloat(content, value);
}

bool KVJHelper::GetShort(TiXmlElement* element, char* name, unsigned short& value) {
    const char* content = attributeOf(element, name);
    if (content != nullptr) convert::scanUnsignedShort(content, value);
    return content != nullptr;
}

bool KVJHelper::GetBool(TiXmlElement* element, char* name, char& value) {
    const char* content = attributeOf(element, name);
    if (content != nullptr) value = static_cast<char>(convert::isTrue(content));
    return content != nullptr;
}

bool KVJHelper::GetString(TiXmlElement* element, char* name, char* buffer, int capacity) {
    const char* content = attributeOf(element, name);
    return content != nullptr && buffer != nullptr && convert::copy(content, buffer, capacity);
}

bool KVJHelper::GetIP(TiXmlElement* /*element*/, char* /*name*/, unsigned long& /*address*/) { return false; }

// ---- Value to element ----

TiXmlElement* KVJHelper::AddTag(TiXmlElement* parent, char* name) { return kvjxml::addTag(parent, name); }

bool KVJHelper::AddTagString(TiXmlElement* parent, char* name, const char* value) {
    return kvjxml::addTag(parent, name, value);
}

bool KVJHelper::AddTagNumber(TiXmlElement* parent, char* name, int value) {
    return kvjxml::addTag(parent, name, convert::fromInt(value).c_str());
}

bool KVJHelper::AddTagUnsigned(TiXmlElement* parent, char* name, unsigned int value) {
    return kvjxml::addTag(parent, name, convert::fromUnsigned(value).c_str());
}

bool KVJHelper::AddTagLong(TiXmlElement* parent, char* name, long value) {
    return kvjxml::addTag(parent, name, convert::fromLong(value).c_str());
}

bool KVJHelper::AddTagFloat(TiXmlElement* parent, char* name, float value) {
    return kvjxml::addTag(parent, name, convert::fromDouble(value, 4).c_str());
}

bool KVJHelper::AddTagDouble(TiXmlElement* parent, char* name, double value) {
    return kvjxml::addTag(parent, name, convert::fromDouble(value, 6).c_str());
}

bool KVJHelper::AddTagBool(TiXmlElement* parent, char* name, long value) {
    return kvjxml::addTag(parent, name, value != 0 ? "yes" : "no");
}

bool KVJHelper::AddTagPhysicalAddress(TiXmlElement* parent, char* name, const unsigned char* address) {
    return address != nullptr && kvjxml::addTag(parent, name, convert::fromHardwareAddress(address).c_str());
}

bool KVJHelper::AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxVal& setting) {
    return kvjxml::addSetting(parent, name, convert::fromInt(setting.min).c_str(),
                              convert::fromInt(setting.max).c_str(), convert::fromInt(setting.value).c_str());
}

bool KVJHelper::AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxValFloat& setting) {
    // The printer expects the maximum as the element's text here, not the value.
    const convert::Digits max = convert::fromDouble(setting.max, 2);
    return kvjxml::addSetting(parent, name, convert::fromDouble(setting.min, 2).c_str(), max.c_str(), max.c_str());
}

bool KVJHelper::AddTagAttrib(TiXmlElement* element, const char* name, const char* value) {
    return kvjxml::setAttribute(element, name, value);
}

bool KVJHelper::AddTagAttrib(TiXmlElement* element, char* name, int value) {
    return kvjxml::setAttribute(element, name, convert::fromInt(value).c_str());
}

// ---- Word to code ----

int KVJHelper::RibbonNameToInt(char* word) { return anyCodeOf(kvjxml::ribbonNames, word); }
int KVJHelper::RibbonDescriptionToInt(char* word) { return anyCodeOf(kvjxml::ribbonDescriptions, word); }
int KVJHelper::RibbonTypeToInt(char* word) { return anyCodeOf(kvjxml::ribbonTypes, word); }
int KVJHelper::FeederSmartToInt(char* word) { return anyCodeOf(kvjxml::smartEncoders, word); }
int KVJHelper::FeederTypeToInt(char* word) { return anyCodeOf(kvjxml::cardMaterials, word); }
int KVJHelper::CoercivityToInt(char* word) { return anyCodeOf(kvjxml::coercivities, word); }
int KVJHelper::LaminationTypeToInt(char* word) { return anyCodeOf(kvjxml::laminationTypes, word); }
int KVJHelper::CommsChannelToInt(char* word) { return anyCodeOf(kvjxml::commsChannels, word); }
int KVJHelper::ContactlessEncToInt(char* word) { return anyCodeOf(kvjxml::contactlessEncoders, word); }
int KVJHelper::PanelToInt(char* word) { return anyCodeOf(kvjxml::panels, word); }
int KVJHelper::LaminatorWidthToInt(char* word) { return anyCodeOf(kvjxml::laminatorWidths, word); }
int KVJHelper::LaminatorRegistrationToInt(char* word) { return anyCodeOf(kvjxml::laminatorRegistrations, word); }
