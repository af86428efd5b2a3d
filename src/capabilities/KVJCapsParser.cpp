#include "KVJCapsParser.h"

#include "capabilities/tables.h"
#include "foundation/reply.h"

namespace Kavrin {

using kvj::anyCodeOf;
using kvj::walk;
namespace tables = kvj::capabilities;

namespace {

/// Reads a list by itself.
template <auto Count, auto Array, const auto& Table>
bool readList(TiXmlElement* section, _Capabilities& caps) {
    tables::Reading reading(caps);
    return tables::list<Count, Array, Table>.read(section, reading);
}

bool readCapabilities(kvj::Element root, _Capabilities& caps) {
    tables::Reading reading(caps);
    return walk(root, reading, tables::whole);
}

}  // namespace

bool KVJCapsParser::GetCapabilities(const wchar_t& text, int length, _Capabilities& caps) {
    const kvj::Reply reply(text, length);
    readCapabilities(reply.root("capabilities", "get_capabilities"), caps);
    return false;  // Whatever was read: hosts look at the record.
}

bool KVJCapsParser::parseCapabilities(TiXmlElement* root, _Capabilities& caps) { return readCapabilities(root, caps); }

// ---- Lists ----

bool KVJCapsParser::getHostPorts(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::hostPortCount, &_Capabilities::hostPorts, tables::hostPorts>(section, caps);
}

bool KVJCapsParser::getDevicePorts(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::devicePortCount, &_Capabilities::devicePorts, tables::devicePorts>(section, caps);
}

bool KVJCapsParser::getSwInterfaces(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::swInterfaceCount, &_Capabilities::swInterfaces, tables::swInterfaces>(section,
                                                                                                          caps);
}

bool KVJCapsParser::getOCPLanguages(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::ocpLanguageCount, &_Capabilities::ocpLanguages, tables::ocpLanguages>(section,
                                                                                                          caps);
}

bool KVJCapsParser::getGraphicFormatCaps(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::graphicFormatCount, &_Capabilities::graphicFormats, tables::graphicFormatList>(
        section, caps);
}

bool KVJCapsParser::getFontsCaps(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::fontCount, &_Capabilities::fonts, tables::fonts>(section, caps);
}

bool KVJCapsParser::getTemplates(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::templateCount, &_Capabilities::templates, tables::templates>(section, caps);
}

bool KVJCapsParser::getGraphics(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::graphicCount, &_Capabilities::graphics, tables::graphics>(section, caps);
}

bool KVJCapsParser::getBarCodes(TiXmlElement* section, _Capabilities& caps) {
    return readList<&_Capabilities::barCodeCount, &_Capabilities::barCodes, tables::barCodes>(section, caps);
}

// ---- Other sections ----

bool KVJCapsParser::getImageSharpeningLevels(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::imageSharpening);
}

bool KVJCapsParser::getSecurityCaps(TiXmlElement* section, _SecurityCaps& security) {
    return walk(section, security, tables::security);
}

bool KVJCapsParser::getMemoryCaps(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::memory);
}

bool KVJCapsParser::getMediaPath(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::mediaPath);
}

bool KVJCapsParser::getImageCaps(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::image);
}

bool KVJCapsParser::getLogicalPage(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::logicalPage);
}

bool KVJCapsParser::getPhysicalPage(TiXmlElement* section, _Capabilities& caps) {
    return walk(section, caps, tables::physicalPage);
}

bool KVJCapsParser::getInternalEncoderInfo(TiXmlElement* section, _InternalEncoderInfo& encoder) {
    return walk(section, encoder, tables::encoder);
}

// ---- Entries ----

bool KVJCapsParser::getHostPort(TiXmlElement* entry, _PortCaps& port) { return walk(entry, port, tables::port); }

bool KVJCapsParser::getSwInterface(TiXmlElement* entry, _InterfaceCaps& swInterface) {
    return walk(entry, swInterface, tables::swInterface);
}

bool KVJCapsParser::getOCPLanguage(TiXmlElement* entry, _OCPLanguageCaps& language) {
    return walk(entry, language, kvj::panelLanguage);
}

bool KVJCapsParser::getFontCaps(TiXmlElement* entry, _FontCaps& font) { return walk(entry, font, tables::font); }

bool KVJCapsParser::getTemplate(TiXmlElement* entry, _TemplateCaps& stored) {
    return walk(entry, stored, tables::stored);
}

// ---- Single values ----

bool KVJCapsParser::getPrintSystem(TiXmlElement* element, _Capabilities& caps) {
    return tables::printSystem.read(element, caps);
}

bool KVJCapsParser::getPrintType(TiXmlElement* element, _Capabilities& caps) {
    return tables::printType.read(element, caps);
}

bool KVJCapsParser::getLaminator(TiXmlElement* element, _Capabilities& caps) {
    return tables::laminator.read(element, caps);
}

bool KVJCapsParser::getLaminatorType(TiXmlElement* element, _Capabilities& caps) {
    return tables::laminatorType.read(element, caps);
}

// ---- Words ----

int KVJCapsParser::portTypeToInt(const char* word) { return anyCodeOf(tables::portTypes, word); }
int KVJCapsParser::protocolToInt(const char* word) { return anyCodeOf(tables::protocols, word); }
int KVJCapsParser::transportToInt(const char* word) { return anyCodeOf(tables::transports, word); }
int KVJCapsParser::encAlgToInt(const char* word) { return anyCodeOf(tables::encryptionAlgorithms, word); }
int KVJCapsParser::graphicsFormatToInt(const char* word) { return anyCodeOf(tables::graphicFormats, word); }
int KVJCapsParser::magHeadTypeToInt(const char* word) { return anyCodeOf(tables::magHeadTypes, word); }
int KVJCapsParser::magStripeLocationToInt(const char* word) { return anyCodeOf(tables::magStripeLocations, word); }
int KVJCapsParser::printerTypeToInt(const char* word) { return anyCodeOf(tables::printSystems, word); }
int KVJCapsParser::laminationTypeToInt(const char* word) { return anyCodeOf(kvj::laminationTypes, word); }

}  // namespace Kavrin
