#include "KVJSetCaps.h"

#include "capabilities/tables.h"
#include "foundation/request.h"

namespace Kavrin {

using kvj::addGroup;
using kvj::addList;
using kvj::compose;
using kvj::wordOf;
using kvj::writeWord;
namespace put = kvj::put;
namespace tables = kvj::capabilities;

bool KVJSetCaps::SetCapabilities(const _Capabilities& caps, wchar_t* out, int outLen, int mode, bool directToCard) {
    directToCard_ = directToCard;
    root_ = kvj::beginRequest(*this, "capabilities");
    addCapabilities(root_, caps, mode);
    return saveJob(out, outLen);
}

// Hosts know it as it is. NOLINTNEXTLINE(readability-make-member-function-const)
bool KVJSetCaps::addCapabilities(TiXmlElement* root, const _Capabilities& caps, int mode) {
    return tables::addCapabilities(root, caps, mode, directToCard_);
}

// ---- Sections ----

bool KVJSetCaps::addHostPorts(TiXmlElement* under, const _Capabilities& caps) {
    return compose(under, caps, tables::hostPortsTag);
}

bool KVJSetCaps::addDevicePorts(TiXmlElement* under, const _Capabilities& caps) {
    return compose(under, caps, tables::devicePortsTag);
}

bool KVJSetCaps::addPorts(TiXmlElement* under, const _PortCaps* ports, int count, char* entryName) {
    return kvj::addEntries(under, entryName, ports, count, put::group<tables::portTags>);
}

bool KVJSetCaps::addSWInterfaces(TiXmlElement* under, const _InterfaceCaps* interfaces, int count) {
    return count != 0 && addList(under, "software_interfaces", "software_interface", interfaces, count,
                                 put::group<tables::swInterface>);
}

bool KVJSetCaps::addOcpLanguages(TiXmlElement* under, const _OCPLanguageCaps* languages, int count) {
    return count != 0 &&
           addList(under, "ocp_languages", "ocp_language", languages, count, put::group<kvj::panelLanguage>);
}

bool KVJSetCaps::addImageSharpeningLevels(TiXmlElement* under, const _Capabilities& caps) {
    return addGroup(under, "image_sharpening_levels", caps, tables::imageSharpening);
}

bool KVJSetCaps::addSecurityCaps(TiXmlElement* under, const _SecurityCaps& security) {
    return addGroup(under, "security", security, tables::security);
}

bool KVJSetCaps::addMemoryCaps(TiXmlElement* under, const _Capabilities& caps) {
    return addGroup(under, "memory", caps, tables::memory);
}

bool KVJSetCaps::addGraphicFormatsCaps(TiXmlElement* under, const int* formats, int count) {
    return addList(under, "graphic_formats", "graphic_format", formats, count, put::wordItself<tables::graphicFormats>);
}

bool KVJSetCaps::addFontsCaps(TiXmlElement* under, const _FontCaps* fonts, int count) {
    return addList(under, "fonts", "font", fonts, count, put::group<tables::fontTags>);
}

bool KVJSetCaps::addTemplateCaps(TiXmlElement* under, const _TemplateCaps* templates, int count) {
    return addList(under, "templates", "template", templates, count, put::group<tables::templateTags>);
}

bool KVJSetCaps::addGraphicsCaps(TiXmlElement* under, const _TemplateCaps* graphics, int count) {
    return addList(under, "graphics", "graphic", graphics, count, put::group<tables::stored>);
}

bool KVJSetCaps::addMediaPathCaps(TiXmlElement* under, const _Capabilities& caps) {
    return addGroup(under, "media_path", caps, tables::mediaPath);
}

bool KVJSetCaps::addImageCaps(TiXmlElement* under, const _Capabilities& caps) {
    return addGroup(under, "image", caps, tables::image);
}

bool KVJSetCaps::addInternalEncoder(TiXmlElement* under, const _InternalEncoderInfo& encoder) {
    return addGroup(under, "internal_encoder", encoder, tables::encoderTags);
}

bool KVJSetCaps::addInternalEncoderOnly(TiXmlElement* under, const _InternalEncoderInfo& encoder) {
    return compose(under, encoder, tables::encoderAlone);
}

bool KVJSetCaps::addBarCodes(TiXmlElement* under, const _BarCodeCaps* barCodes, int count) {
    return addList(under, "barcodes", "barcode", barCodes, count, put::text<&_BarCodeCaps::name>);
}

// ---- Codes to words ----

bool KVJSetCaps::portTypeToString(char* buf, int code) { return writeWord(buf, tables::portTypesWritten, code); }
bool KVJSetCaps::protocolToString(char* buf, int code) { return writeWord(buf, tables::protocols, code); }
bool KVJSetCaps::transportToString(char* buf, int code) { return writeWord(buf, tables::transports, code); }
bool KVJSetCaps::graphicFormatToString(char* buf, int code) { return writeWord(buf, tables::graphicFormats, code); }
bool KVJSetCaps::MagHeadTypeToString(char* buf, int code) { return writeWord(buf, tables::magHeadTypesWritten, code); }

bool KVJSetCaps::encAlgToString(char* buf, int code) {
    return writeWord(buf, tables::encryptionAlgorithms, code, "none");
}

bool KVJSetCaps::magStripeLocationToString(char* buf, int code) {
    return writeWord(buf, tables::magStripeLocations, code);
}

bool KVJSetCaps::printTypeToString(char* buf, int code) {
    // False tells hosts that they have nothing to do, and so it is for "2_side".
    return writeWord(buf, kvj::laminationTypes, code) && code == 1;
}

bool KVJSetCaps::LamTypeToString(char* buf, _laminatorType code) {
    if (buf != nullptr && wordOf(tables::laminatorTypesWritten, code) != nullptr) {
        writeWord(buf, tables::laminatorTypesWritten, code);
    }
    return buf != nullptr;
}

bool KVJSetCaps::LaminatorToString(char* buf, char flag) {
    return writeWord(buf, tables::laminatorsWritten, flag != 0 ? 1 : 0);
}

// Hosts are linked against it as it is. NOLINTNEXTLINE(readability-make-member-function-const)
bool KVJSetCaps::printSystemTypeToString(char* buf, int /*code*/) {
    return writeWord(buf, tables::printSystemsWritten, directToCard_ ? 1 : 0);
}

bool KVJSetCaps::CommsChannelFromInt(int code, char* buf, int /*ignored*/) {
    writeWord(buf, kvj::commsChannelsInCapabilities, code);
    return buf != nullptr;
}

bool KVJSetCaps::ContactlessEncFromInt(int code, char* buf, int /*ignored*/) {
    writeWord(buf, kvj::contactlessEncodersWritten, code);
    return buf != nullptr;
}

bool KVJSetCaps::ribbonTypeToString(char* buf, int code) { return writeWord(buf, kvj::ribbonTypesWritten, code); }
bool KVJSetCaps::feederTypeToString(char* buf, int code) { return writeWord(buf, kvj::cardMaterials, code); }
bool KVJSetCaps::feederSmartToString(char* buf, int code) { return writeWord(buf, kvj::smartEncoders, code); }

bool KVJSetCaps::saveJob(wchar_t* out, int outLen) { return kvj::print(*this, out, outLen); }

bool KVJSetCaps::saveJob(char* path) { return kvj::save(*this, path); }

}  // namespace Kavrin
