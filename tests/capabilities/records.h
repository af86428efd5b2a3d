/// @file records.h
/// What the tests of capabilities share: records with a value in every field that no test writes, the lists of a
/// record, records as something to compare, and elements as text.
#ifndef KVJXML_TESTS_CAPABILITIES_RECORDS_H
#define KVJXML_TESTS_CAPABILITIES_RECORDS_H

#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "CapabilitiesRecords.h"

namespace kvj::tests {

using namespace Kavrin;  // the records

inline std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

/// As it is written when it has neither text nor elements.
inline std::string emptyElement(std::string name) { return name.insert(0, 1, '<') + " />"; }

// ---- Presets: flags are true, since a flag without text becomes false ----

template <class Record>
Record preset();
template <>
inline int preset() {
    return -1001;
}
template <>
inline _PortCaps preset() {
    return {-1002, -1003};
}
template <>
inline _InterfaceCaps preset() {
    return {-1004, -1005, -1006};
}
template <>
inline _OCPLanguageCaps preset() {
    return {-1007, "preset"};
}
template <>
inline _SecurityCaps preset() {
    return {true, -1008};
}
template <>
inline _FontCaps preset() {
    return {"preset", true, -1009};
}
template <>
inline _TemplateCaps preset() {
    return {"preset", "in preset"};
}
template <>
inline _BarCodeCaps preset() {
    return {"preset"};
}
template <>
inline _InternalEncoderInfo preset() {
    return {-1010, true, -1011, -1012, true};
}
/// Its lists have no entries.
template <>
inline _Capabilities preset() {
    _Capabilities caps{};
    caps.imageSharpeningLevels = 0x10;  // a bit without a word
    caps.security = preset<_SecurityCaps>();
    caps.ramSize = -1013;
    caps.flashSize = -1014;
    caps.printSystem = -1015;
    caps.printType = -1016;
    caps.atm = true;
    caps.magazineCapacity = -1017;
    caps.logicalPageLength = -1018;
    caps.logicalPageWidth = -1019;
    caps.physicalPageLength = -1020;
    caps.physicalPageWidth = -1021;
    caps.printResolution = -1022;
    caps.magHeadType = -1023;
    caps.magStripeLocation = -1024;
    caps.internalEncoder = preset<_InternalEncoderInfo>();
    caps.laminator = true;
    caps.laminatorType = static_cast<_laminatorType>(-1025);
    return caps;
}

// ---- Lists ----

/// The host's arrays for all lists of a record.
struct Lists {
    std::vector<_PortCaps> hostPorts;
    std::vector<_PortCaps> devicePorts;
    std::vector<_InterfaceCaps> swInterfaces;
    std::vector<_OCPLanguageCaps> ocpLanguages;
    std::vector<int> graphicFormats;
    std::vector<_FontCaps> fonts;
    std::vector<_TemplateCaps> templates;
    std::vector<_TemplateCaps> graphics;
    std::vector<_BarCodeCaps> barCodes;

    /// Makes them the lists of a record, each with the count that it has room for.
    void lendTo(_Capabilities& caps) {
        lend(hostPorts, caps.hostPortCount, caps.hostPorts);
        lend(devicePorts, caps.devicePortCount, caps.devicePorts);
        lend(swInterfaces, caps.swInterfaceCount, caps.swInterfaces);
        lend(ocpLanguages, caps.ocpLanguageCount, caps.ocpLanguages);
        lend(graphicFormats, caps.graphicFormatCount, caps.graphicFormats);
        lend(fonts, caps.fontCount, caps.fonts);
        lend(templates, caps.templateCount, caps.templates);
        lend(graphics, caps.graphicCount, caps.graphics);
        lend(barCodes, caps.barCodeCount, caps.barCodes);
    }

private:
    template <class Entry>
    static void lend(std::vector<Entry>& entries, int& count, Entry*& array) {
        count = static_cast<int>(entries.size());
        array = entries.data();
    }
};

// ---- Fields: two records are equal when these are ----

/// Values as a text that no others have. A tuple of them would be long to compile, wherever two are compared.
template <class... Values>
std::string shown(const Values&... values) {
    std::ostringstream text;
    ((text << values << ' '), ...);
    return text.str();
}

inline auto fieldsOf(int code) { return shown(code); }
inline auto fieldsOf(const _PortCaps& port) { return shown(port.portId, port.portType); }
inline auto fieldsOf(const _InterfaceCaps& swInterface) {
    return shown(swInterface.protocol, swInterface.transport, swInterface.port);
}
inline auto fieldsOf(const _OCPLanguageCaps& language) { return shown(language.type, std::quoted(language.name)); }
inline auto fieldsOf(const _SecurityCaps& security) {
    return shown(security.passkeyProtection, security.encryptionAlgorithm);
}
inline auto fieldsOf(const _FontCaps& font) { return shown(std::quoted(font.name), font.scalable, font.style); }
inline auto fieldsOf(const _TemplateCaps& stored) {
    return shown(std::quoted(stored.name), std::quoted(stored.location));
}
inline auto fieldsOf(const _BarCodeCaps& barCode) { return shown(std::quoted(barCode.name)); }
inline auto fieldsOf(const _InternalEncoderInfo& encoder) {
    return shown(encoder.commsChannel, encoder.contactEncoding, encoder.contactlessEncoder, encoder.contactlessEncoder2,
                 encoder.contactStation);
}
/// Of a list, where it is and what room it has.
inline auto fieldsOf(const _Capabilities& caps) {
    return shown(caps.hostPortCount, caps.hostPorts, caps.devicePortCount, caps.devicePorts, caps.swInterfaceCount,
                 caps.swInterfaces, caps.ocpLanguageCount, caps.ocpLanguages, caps.graphicFormatCount,
                 caps.graphicFormats, caps.fontCount, caps.fonts, caps.templateCount, caps.templates, caps.graphicCount,
                 caps.graphics, caps.barCodeCount, caps.barCodes) +
           shown(caps.imageSharpeningLevels, caps.ramSize, caps.flashSize, caps.printSystem, caps.printType, caps.atm,
                 caps.magazineCapacity, caps.logicalPageLength, caps.logicalPageWidth, caps.physicalPageLength,
                 caps.physicalPageWidth, caps.printResolution) +
           shown(fieldsOf(caps.security), caps.magHeadType, caps.magStripeLocation, fieldsOf(caps.internalEncoder),
                 caps.laminator, caps.laminatorType);
}

/// Of each entry of a list.
template <class Entry>
std::vector<std::string> fieldsOf(const std::vector<Entry>& entries) {
    std::vector<std::string> all;
    for (const Entry& entry : entries) all.push_back(fieldsOf(entry));
    return all;
}

/// Of each entry of each list.
inline std::vector<std::vector<std::string>> fieldsOf(const Lists& lists) {
    return {fieldsOf(lists.hostPorts),    fieldsOf(lists.devicePorts),    fieldsOf(lists.swInterfaces),
            fieldsOf(lists.ocpLanguages), fieldsOf(lists.graphicFormats), fieldsOf(lists.fonts),
            fieldsOf(lists.templates),    fieldsOf(lists.graphics),       fieldsOf(lists.barCodes)};
}

}  // namespace kvj::tests

#endif
