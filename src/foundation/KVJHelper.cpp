#include "KVJHelper.h"

#include <tinyxml.h>

#include "foundation/convert.h"
#include "foundation/element.h"
#include "foundation/tags.h"
#include "foundation/values.h"
#include "foundation/vocabulary.h"
#include "foundation/write_rules.h"

namespace convert = kvj::convert;
using kvj::Element;
using kvj::readNumber;

// ---- Element text to value ----

bool KVJHelper::GetNumber(TiXmlElement* element, int& value, bool /*ignored*/) { return readNumber(element, value); }

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned int& value, bool /*ignored*/) {
    return readNumber(element, value);
}

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned short& value, bool /*ignored*/) {
    return readNumber(element, value);
}

bool KVJHelper::GetNumber(TiXmlElement* element, unsigned long& value, bool /*ignored*/) {
    return readNumber(element, value);
}

bool KVJHelper::GetNumber(TiXmlElement* element, long& value, bool /*ignored*/) { return readNumber(element, value); }

bool KVJHelper::GetNumber(TiXmlElement* element, float& value, bool /*ignored*/) { return readNumber(element, value); }

bool KVJHelper::GetString(TiXmlElement* element, char& first, int capacity) {
    return kvj::readText(element, &first, capacity);
}

bool KVJHelper::GetBool(TiXmlElement* element, char& value) { return kvj::readTruth(element, value); }

bool KVJHelper::GetBool(TiXmlElement* element, bool& value) { return kvj::readTruth(element, value); }

bool KVJHelper::GetPhysicalAddress(TiXmlElement* element, unsigned char* address) {
    return address != nullptr && kvj::readHardwareAddress(element, address);
}

// ---- Attribute to value ----

bool KVJHelper::GetInt(TiXmlElement* element, char* name, int& value) {
    return kvj::readAttribute(element, name, value);
}

bool KVJHelper::GetNumberFromAttr(TiXmlElement* element, char* name, int& value) {
    return kvj::readAttribute(element, name, value);
}

bool KVJHelper::GetNumberFromAttr(TiXmlElement* element, char* name, float& value) {
    return kvj::readAttribute(element, name, value);
}

bool KVJHelper::GetShort(TiXmlElement* element, char* name, unsigned short& value) {
    const char* content = Element(element).attribute(name);
    if (content != nullptr) convert::scanUnsignedShort(content, value);
    return content != nullptr;
}

bool KVJHelper::GetBool(TiXmlElement* element, char* name, char& value) {
    return kvj::store(Element(element).attribute(name), value, convert::isTrue);
}

bool KVJHelper::GetString(TiXmlElement* element, char* name, char* buffer, int capacity) {
    const char* content = Element(element).attribute(name);
    return content != nullptr && buffer != nullptr && convert::copy(content, buffer, capacity);
}

bool KVJHelper::GetIP(TiXmlElement* /*element*/, char* /*name*/, unsigned long& /*address*/) { return false; }

// ---- Value to element ----

TiXmlElement* KVJHelper::AddTag(TiXmlElement* parent, char* name) { return kvj::addTag(parent, name).element(); }

bool KVJHelper::AddTagString(TiXmlElement* parent, char* name, const char* value) {
    return kvj::addTag(parent, name, value);
}

bool KVJHelper::AddTagNumber(TiXmlElement* parent, char* name, int value) {
    return kvj::addTag(parent, name, convert::fromInt(value).c_str());
}

bool KVJHelper::AddTagUnsigned(TiXmlElement* parent, char* name, unsigned int value) {
    return kvj::addTag(parent, name, convert::fromUnsigned(value).c_str());
}

bool KVJHelper::AddTagLong(TiXmlElement* parent, char* name, long value) {
    return kvj::addTag(parent, name, convert::fromLong(value).c_str());
}

bool KVJHelper::AddTagFloat(TiXmlElement* parent, char* name, float value) {
    return kvj::addTag(parent, name, convert::fromDouble(value, 4).c_str());
}

bool KVJHelper::AddTagDouble(TiXmlElement* parent, char* name, double value) {
    return kvj::addTag(parent, name, convert::fromDouble(value, 6).c_str());
}

bool KVJHelper::AddTagBool(TiXmlElement* parent, char* name, long value) {
    return kvj::addTag(parent, name, value != 0 ? "yes" : "no");
}

bool KVJHelper::AddTagPhysicalAddress(TiXmlElement* parent, char* name, const unsigned char* address) {
    return address != nullptr && kvj::addTag(parent, name, convert::fromHardwareAddress(address).c_str());
}

bool KVJHelper::AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxVal& setting) {
    return kvj::addSetting(parent, name, setting);
}

bool KVJHelper::AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxValFloat& setting) {
    return kvj::addSetting(parent, name, setting);
}

bool KVJHelper::AddTagAttrib(TiXmlElement* element, const char* name, const char* value) {
    return kvj::setAttribute(element, name, value);
}

bool KVJHelper::AddTagAttrib(TiXmlElement* element, char* name, int value) {
    return kvj::setAttribute(element, name, convert::fromInt(value).c_str());
}

// ---- Word to code ----

int KVJHelper::RibbonNameToInt(char* word) { return anyCodeOf(kvj::ribbonNames, word); }
int KVJHelper::RibbonDescriptionToInt(char* word) { return anyCodeOf(kvj::ribbonDescriptions, word); }
int KVJHelper::RibbonTypeToInt(char* word) { return anyCodeOf(kvj::ribbonTypes, word); }
int KVJHelper::FeederSmartToInt(char* word) { return anyCodeOf(kvj::smartEncoders, word); }
int KVJHelper::FeederTypeToInt(char* word) { return anyCodeOf(kvj::cardMaterials, word); }
int KVJHelper::CoercivityToInt(char* word) { return anyCodeOf(kvj::coercivities, word); }
int KVJHelper::LaminationTypeToInt(char* word) { return anyCodeOf(kvj::laminationTypes, word); }
int KVJHelper::CommsChannelToInt(char* word) { return anyCodeOf(kvj::commsChannels, word); }
int KVJHelper::ContactlessEncToInt(char* word) { return anyCodeOf(kvj::contactlessEncoders, word); }
int KVJHelper::PanelToInt(char* word) { return anyCodeOf(kvj::panels, word); }
int KVJHelper::LaminatorWidthToInt(char* word) { return anyCodeOf(kvj::laminatorWidths, word); }
int KVJHelper::LaminatorRegistrationToInt(char* word) { return anyCodeOf(kvj::laminatorRegistrations, word); }
