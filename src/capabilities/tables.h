/// @file capabilities/tables.h
/// What a printer can do, element by element, as it is read and as it is written. The printer takes not quite what it
/// sends; where the two differ, they stand side by side.
#ifndef KVJXML_CAPABILITIES_TABLES_H
#define KVJXML_CAPABILITIES_TABLES_H

#include "CapabilitiesRecords.h"
#include "capabilities/lists.h"
#include "foundation/both.h"
#include "foundation/rows.h"
#include "foundation/vocabulary.h"
#include "foundation/words.h"
#include "shared/encoder.h"
#include "shared/panel.h"

namespace kvj::capabilities {

using Caps = _Capabilities;

// ---- Words ----

inline constexpr WordTable portTypes{
    -1, {{"usb_2_0", 0}, {"serial", 1}, {"ethernet_10_100", 2}, {"ethernet_10_100_1G", 3}, {"wifi_enet_802_11g", 4}}};
/// A printer reports its wireless port, but takes no word for it.
inline constexpr WordTable portTypesWritten(
    {{"usb_2_0", 0}, {"serial", 1}, {"ethernet_10_100", 2}, {"ethernet_10_100_1G", 3}});

/// Both directions.
inline constexpr WordTable protocols{-1, {{"snmp", 0}, {"snmp_trap", 1}, {"http", 2}, {"kavrin", 3}}};

/// Both directions.
inline constexpr WordTable transports{-1, {{"udp", 0}, {"tcp", 1}, {"usb", 2}, {"usb_2_0", 3}}};

/// Both directions; any other code is written as "none", which the printer does not send.
inline constexpr WordTable encryptionAlgorithms{-1, {{"aes", 1}, {"3des", 2}}};

/// Both directions. The printer numbers formats as its image decoder does; it does not take 3 to 7.
inline constexpr WordTable graphicFormats{-1, {{"bmp", 1}, {"jpeg", 2}, {"tga", 8}, {"tiff", 9}, {"raw", 10}}};

/// Both directions; any other code is written as "none", which the printer does not send.
inline constexpr WordTable fontStyles{0, {{"regular", 1}, {"bold", 2}, {"italic", 3}}};

inline constexpr WordTable magHeadTypes{
    -1, {{"none", 0}, {"iso", 1}, {"aamva", 2}, {"custom", 3}, {"binary", 4}, {"jis", 5}}};
/// A printer reports a JIS head, but takes no word for it.
inline constexpr WordTable magHeadTypesWritten({{"none", 0}, {"iso", 1}, {"aamva", 2}, {"custom", 3}, {"binary", 4}});

/// Both directions.
inline constexpr WordTable magStripeLocations{-1, {{"back", 0}, {"front", 1}}};

inline constexpr WordTable printSystems{-1, {{"direct", 0}, {"retransfer", 1}}};
/// By the composer's flag. "direct_to_card" does not read back.
inline constexpr WordTable printSystemsWritten({{"retransfer", 0}, {"direct_to_card", 1}});

/// By the laminator's flag. "notpresent" reads as any other word does.
inline constexpr WordTable laminatorsWritten({{"notpresent", 0}, {"present", 1}});

/// laminationTypes reads them; "none" reads as any other word does.
inline constexpr WordTable laminatorTypesWritten({{"none", 0}, {"1_side", 1}, {"2_side", 2}});

/// Both directions, a bit for each word.
inline constexpr WordTable sharpeningLevels({{"off", 0x1}, {"normal", 0x2}, {"high", 0x4}, {"low", 0x8}});

// ---- Special rows ----

/// Device ports all go to the first entry: hosts know a printer by its last one.
template <const auto& Table>
inline constexpr ReadRule<List<RecordOfTable<Table>>> firstEntry{{.kind = Kind::firstEntry, .group = described<Table>},
                                                                 [](Element element, List<RecordOfTable<Table>>& list) {
                                                                     list.filled = 0;
                                                                     return entry<Table>.read(element, list);
                                                                 }};

/// The print system that the printer expects is the one that it is told to use, not the one that it reported.
inline constexpr WriteRule<_Capabilities> requestedPrintSystem{
    {.kind = Kind::toldWord, .word = "direct_to_card", .otherWord = "retransfer"},
    [](Parent parent, const char* name, const _Capabilities&, const Selection& selection) {
        return addTag(parent, name, wordOf(printSystemsWritten, selection.directToCard ? 1 : 0));
    }};

/// The word for the laminator. In the whole description the printer expects it in the elements of the magnetic encoder
/// as well; it takes a head type only in a request of its own.
inline constexpr WriteRule<_Capabilities> laminatorWord{
    {.kind = Kind::laminatorWord,
     .words = named<laminatorTypesWritten>,
     .otherWord = "notpresent",
     .otherField = fieldOf<&_Capabilities::laminatorType>},
    [](Parent parent, const char* name, const _Capabilities& caps, const Selection&) {
        return caps.laminator ? addWord(parent, name, laminatorTypesWritten, caps.laminatorType, "", "/laminatorType")
                              : addTag(parent, name, "notpresent");
    }};

template <auto Count>
inline constexpr Condition<_Capabilities> unlessZero{
    "unless the count is 0", [](const _Capabilities& caps, const Selection&) { return caps.*Count != 0; }};

inline constexpr Condition<_Capabilities> withLaminator{
    "with a laminator", [](const _Capabilities& caps, const Selection&) { return caps.laminator; }};

// clang-format off

// ---- Entries of lists ----

/// "host_port", "device_port"
inline constexpr auto port = rows<_PortCaps>({
    {"port_id", number<&_PortCaps::portId>},
    {"type",    word<&_PortCaps::portType, portTypes>},
});
inline constexpr auto portTags = tags<_PortCaps>({
    {"port_id", put::number<&_PortCaps::portId>},
    {"type",    put::word<&_PortCaps::portType, portTypesWritten>},
});

/// "software_interface"
inline constexpr auto swInterface = bothWays<_InterfaceCaps>({
    {"protocol",  both::word<&_InterfaceCaps::protocol, protocols>},
    {"transport", both::word<&_InterfaceCaps::transport, transports>},
    {"port",      both::number<&_InterfaceCaps::port>},
});

/// "font". The printer expects the flag under a second "name", so a composed font reads back with "yes" or "no" for its
/// name.
inline constexpr auto font = rows<_FontCaps>({
    {"name",     text<&_FontCaps::name>},
    {"scalable", flag<&_FontCaps::scalable>},
    {"style",    word<&_FontCaps::style, fontStyles>},
});
inline constexpr auto fontTags = tags<_FontCaps>({
    {"name",  put::text<&_FontCaps::name>},
    {"name",  put::yesOrNo<&_FontCaps::scalable>},
    {"style", put::word<&_FontCaps::style, fontStyles, "none">},
});

/// "template", "graphic". A printer is not told where a template is.
inline constexpr auto stored = bothWays<_TemplateCaps>({
    {"name",     both::text<&_TemplateCaps::name>},
    {"location", both::text<&_TemplateCaps::location>},
});
inline constexpr auto templateTags = tags<_TemplateCaps>({
    {"name", put::text<&_TemplateCaps::name>},
});

/// The text of "barcode" itself.
inline constexpr const auto& barCode = text<&_BarCodeCaps::name>;

// ---- Lists ----

inline constexpr auto hostPorts         = rows<List<_PortCaps>>({{"host_port", entry<port>}});
inline constexpr auto devicePorts       = rows<List<_PortCaps>>({{"device_port", firstEntry<port>}});
inline constexpr auto swInterfaces      = rows<List<_InterfaceCaps>>({{"software_interface", entry<swInterface>}});
inline constexpr auto ocpLanguages      = rows<List<_OCPLanguageCaps>>({{"ocp_language", entry<panelLanguage>}});
inline constexpr auto graphicFormatList = rows<List<int>>({{"graphic_format", each<wordItself<graphicFormats>>}});
inline constexpr auto fonts             = rows<List<_FontCaps>>({{"font", entry<font>}});
inline constexpr auto templates         = rows<List<_TemplateCaps>>({{"template", entry<stored>}});
inline constexpr auto graphics          = rows<List<_TemplateCaps>>({{"graphic", entry<stored>}});
inline constexpr auto barCodes          = rows<List<_BarCodeCaps>>({{"barcode", each<barCode>}});

// ---- Sections ----

/// "image_sharpening_levels"
inline constexpr auto imageSharpening = bothWays<_Capabilities>({
    {"image_sharpening_level", both::bits<&Caps::imageSharpeningLevels, sharpeningLevels>},
});

/// "security"
inline constexpr auto security = bothWays<_SecurityCaps>({
    {"passkey_protection",   both::yesOrNo<&_SecurityCaps::passkeyProtection>},
    {"encryption_algorithm", both::word<&_SecurityCaps::encryptionAlgorithm, encryptionAlgorithms, "none">},
});

/// "memory"
inline constexpr auto memory = bothWays<_Capabilities>({
    {"ram",   both::number<&Caps::ramSize>},
    {"flash", both::number<&Caps::flashSize>},
});

/// "media_path"
inline constexpr auto mediaPath = bothWays<_Capabilities>({
    {"atm",               both::yesOrNo<&Caps::atm>},
    {"magazine_capacity", both::number<&Caps::magazineCapacity>},
});

/// "logical_page"
inline constexpr auto logicalPage = bothWays<_Capabilities>({
    {"length", both::number<&Caps::logicalPageLength>},
    {"width",  both::number<&Caps::logicalPageWidth>},
});

/// "physical_page"
inline constexpr auto physicalPage = bothWays<_Capabilities>({
    {"length", both::number<&Caps::physicalPageLength>},
    {"width",  both::number<&Caps::physicalPageWidth>},
});

/// "image"
inline constexpr auto image = bothWays<_Capabilities>({
    {"logical_page",     both::group<logicalPage>},
    {"physical_page",    both::group<physicalPage>},
    {"print_resolution", both::number<&Caps::printResolution>},
});

/// "internal_encoder"
inline constexpr const auto& encoder =
    internalEncoder<word<&_InternalEncoderInfo::contactlessEncoder, contactlessEncoders>>;
inline constexpr const auto& encoderTags = internalEncoderTags<commsChannelsInCapabilities>;

// ---- The whole ----

inline constexpr const auto& printSystem = word<&Caps::printSystem, printSystems>;
inline constexpr const auto& printType = word<&Caps::printType, laminationTypes>;
inline constexpr const auto& laminator = is<&Caps::laminator, "present">;
inline constexpr const auto& laminatorType = word<&Caps::laminatorType, laminationTypes>;

/// "capabilities", "get_capabilities"
inline constexpr auto whole = rows<Reading>({
    {"host_ports",              list<&Caps::hostPortCount, &Caps::hostPorts, hostPorts>},
    {"device_ports",            list<&Caps::devicePortCount, &Caps::devicePorts, devicePorts>},
    {"software_interfaces",     list<&Caps::swInterfaceCount, &Caps::swInterfaces, swInterfaces>},
    {"ocp_languages",           list<&Caps::ocpLanguageCount, &Caps::ocpLanguages, ocpLanguages>},
    {"image_sharpening_levels", plain<group<imageSharpening>>},
    {"security",                plain<part<&Caps::security, security>>},
    {"memory",                  plain<group<memory>>},
    {"graphic_formats",         list<&Caps::graphicFormatCount, &Caps::graphicFormats, graphicFormatList>},
    {"fonts",                   list<&Caps::fontCount, &Caps::fonts, fonts>},
    {"templates",               list<&Caps::templateCount, &Caps::templates, templates>},
    {"graphics",                list<&Caps::graphicCount, &Caps::graphics, graphics>},
    {"print_system",            plain<printSystem>},
    {"print_type",              plain<printType>},
    {"laminator",               plain<laminator>},
    {"laminator_type",          plain<laminatorType>},
    {"media_path",              plain<group<mediaPath>>},
    {"image",                   plain<group<image>>},
    {"mag_encoder",             plain<word<&Caps::magHeadType, magHeadTypes>>},
    {"mag_stripe",              plain<word<&Caps::magStripeLocation, magStripeLocations>>},
    {"internal_encoder",        plain<part<&Caps::internalEncoder, encoder>>},
    {"barcodes",                list<&Caps::barCodeCount, &Caps::barCodes, barCodes>},
});

inline constexpr Tag<_Capabilities> hostPortsTag{
    "host_ports", put::list<&Caps::hostPortCount, &Caps::hostPorts, "host_port", put::group<portTags>>,
    unlessZero<&Caps::hostPortCount>};
inline constexpr Tag<_Capabilities> devicePortsTag{
    "device_ports", put::list<&Caps::devicePortCount, &Caps::devicePorts, "device_port", put::group<portTags>>,
    unlessZero<&Caps::devicePortCount>};

inline constexpr auto wholeTags = tags<_Capabilities>({
    hostPortsTag,
    devicePortsTag,
    {"software_interfaces",     put::list<&Caps::swInterfaceCount, &Caps::swInterfaces,
                                          "software_interface", put::group<swInterface>>,
                                unlessZero<&Caps::swInterfaceCount>},
    {"ocp_languages",           put::list<&Caps::ocpLanguageCount, &Caps::ocpLanguages,
                                          "ocp_language", put::group<panelLanguage>>,
                                unlessZero<&Caps::ocpLanguageCount>},
    {"image_sharpening_levels", put::group<imageSharpening>},
    {"security",                put::part<&Caps::security, security>},
    {"memory",                  put::group<memory>},
    {"graphic_formats",         put::list<&Caps::graphicFormatCount, &Caps::graphicFormats,
                                          "graphic_format", put::wordItself<graphicFormats>>},
    {"fonts",                   put::list<&Caps::fontCount, &Caps::fonts, "font", put::group<fontTags>>},
    {"templates",               put::list<&Caps::templateCount, &Caps::templates,
                                          "template", put::group<templateTags>>},
    {"graphics",                put::list<&Caps::graphicCount, &Caps::graphics, "graphic", put::group<stored>>},
    {"print_system",            requestedPrintSystem},
    {"print_type",              put::word<&Caps::printType, laminationTypes>},
    {"laminator",               put::either<&Caps::laminator, "present", "notpresent">},
    {"laminator_type",          laminatorWord, withLaminator},
    {"media_path",              put::group<mediaPath>},
    {"image",                   put::group<image>},
    {"mag_encoder",             laminatorWord},
    {"mag_stripe",              laminatorWord},
    {"internal_encoder",        put::part<&Caps::internalEncoder, encoderTags>},
    {"barcodes",                put::list<&Caps::barCodeCount, &Caps::barCodes,
                                          "barcode", put::text<&_BarCodeCaps::name>>},
});

// ---- The encoders alone ----

inline constexpr auto magEncoderAlone = tags<_Capabilities>({
    {"mag_encoder", put::word<&Caps::magHeadType, magHeadTypesWritten>},
});

// clang-format on

using EncoderCondition = Condition<_InternalEncoderInfo>;
inline constexpr EncoderCondition withContactStation{
    "with a contact station", [](const _InternalEncoderInfo& info, const Selection&) { return info.contactStation; }};
inline constexpr EncoderCondition withContact{
    "with contact encoding", [](const _InternalEncoderInfo& info, const Selection&) { return info.contactEncoding; }};
inline constexpr EncoderCondition withContactless{
    "with a contactless encoder",
    [](const _InternalEncoderInfo& info, const Selection&) { return info.contactlessEncoder != 0; }};
inline constexpr EncoderCondition withEither{"with either encoder",
                                             [](const _InternalEncoderInfo& info, const Selection&) {
                                                 return info.contactlessEncoder != 0 || info.contactEncoding;
                                             }};
inline constexpr EncoderCondition withAny{"with a channel or either encoder",
                                          [](const _InternalEncoderInfo& info, const Selection& selection) {
                                              return info.commsChannel != 0 || withEither.holds(info, selection);
                                          }};

// clang-format off

/// "internal_encoder"; its channel is always USB.
inline constexpr auto encoderAloneTags = tags<_InternalEncoderInfo>({
    {"comms_channel",       put::constant<_InternalEncoderInfo, "usb_2_0">, withEither},
    {"contact_encoding",    put::constant<_InternalEncoderInfo, "yes">, withContact},
    {"contactless_encoder", put::word<&_InternalEncoderInfo::contactlessEncoder, contactlessEncodersWritten>,
                            withContactless},
});

inline constexpr WriteRule<_InternalEncoderInfo> encoderAloneGroup{
    {.field = fieldOf<&Caps::internalEncoder>, .kind = Kind::part, .group = described<encoderAloneTags>},
    [](Parent parent, const char* name, const _InternalEncoderInfo& info, const Selection&) {
        const Parent element = addTag(parent, name);
        // Written even when there is nothing to say in it.
        compose(element, info, encoderAloneTags);
        return static_cast<bool>(element);
    }};

inline constexpr auto encoderAlone = tags<_InternalEncoderInfo>({
    {"contact_station",  put::constant<_InternalEncoderInfo, "yes">, withContactStation},
    {"internal_encoder", encoderAloneGroup, withAny},
});

// clang-format on

/// Adds what a mode asks for: 0 the whole, 1 the magnetic encoder alone, 2 the built-in encoder alone; any other
/// nothing.
inline bool addCapabilities(Parent root, const _Capabilities& caps, int mode, bool directToCard) {
    switch (mode) {
        case 0:
            return compose(root, caps, wholeTags, {.directToCard = directToCard});
        case 1:
            return compose(root, caps, magEncoderAlone);
        case 2:
            return compose(root, caps.internalEncoder, encoderAlone);
        default:
            return false;
    }
}

}  // namespace kvj::capabilities

#endif
