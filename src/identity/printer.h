/// @file identity/printer.h
/// Who a printer is, element by element, as it is read and as it is written.
#ifndef KVJXML_IDENTITY_PRINTER_H
#define KVJXML_IDENTITY_PRINTER_H

#include "IdentityRecords.h"
#include "foundation/read_rules.h"
#include "foundation/write_rules.h"

namespace kvj::identity {

using namespace Kavrin;  // the records

/// A number. A text that is not a number leaves the field alone, but counts as read.
template <auto Member, auto Scan>
bool scanned(Element element, RecordOf<Member>& record) {
    const char* content = element.text();
    if (content != nullptr) Scan(content, record.*Member);
    return content != nullptr;
}

template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> serial{
    {.field = fieldOf<Member>, .kind = Kind::number, .number = {.isSigned = false, .onlyNumbers = true}},
    [](Element element, RecordOf<Member>& record) { return scanned<Member, convert::scanUnsigned>(element, record); }};

template <auto Member>
inline constexpr ReadRule<RecordOf<Member>> hexByte{
    {.field = fieldOf<Member>,
     .kind = Kind::number,
     .number = {.isSigned = false, .base = Base::hexadecimal, .digits = 2, .onlyNumbers = true}},
    [](Element element, RecordOf<Member>& record) {
        return scanned<Member, convert::scanPrefixedHexByte>(element, record);
    }};

// clang-format off

/// "printer_id"
inline constexpr auto printer = rows<KVPrinterInfo>({
    {"vendor",                    text<&KVPrinterInfo::vendor>},
    {"printer_model",             text<&KVPrinterInfo::printer_model>},
    {"printer_serial",            serial<&KVPrinterInfo::printer_serial>},
    {"laminator_serial",          serial<&KVPrinterInfo::laminator_serial>},
    {"physical_address",          hardwareAddress<&KVPrinterInfo::physical_address>},
    {"printhead_serial",          text<&KVPrinterInfo::printhead_serial>},
    {"oem_country",               text<&KVPrinterInfo::oem_country>},
    {"media_auth_cfg",            hexByte<&KVPrinterInfo::media_auth_cfg>},
    {"firmware_version",          text<&KVPrinterInfo::firmware_version>},
    {"laminator_fw_version",      text<&KVPrinterInfo::laminator_fw_version>},
    {"lam_mab_fw_version",        text<&KVPrinterInfo::lam_mab_fw_version>},
    {"hcb_fw_version",            text<&KVPrinterInfo::hcb_fw_version>},
    {"mab_fw_version",            text<&KVPrinterInfo::mab_fw_version>},
    {"kavrin_version",            text<&KVPrinterInfo::kavrin_version>},
    {"ethernet_deviceid",         text<&KVPrinterInfo::ethernet_deviceid>},
    {"wireless_physical_address", hardwareAddress<&KVPrinterInfo::wireless_physical_address>},
});
/// The full identity. Only the printer tells the versions of single boards.
inline constexpr auto printerTags = tags<KVPrinterInfo>({
    {"vendor",                    put::text<&KVPrinterInfo::vendor>},
    {"printer_model",             put::text<&KVPrinterInfo::printer_model>},
    {"printer_serial",            put::number<&KVPrinterInfo::printer_serial>},
    {"laminator_serial",          put::number<&KVPrinterInfo::laminator_serial>},
    {"physical_address",          put::hardwareAddress<&KVPrinterInfo::physical_address>},
    {"printhead_serial",          put::text<&KVPrinterInfo::printhead_serial>},
    {"oem_country",               put::text<&KVPrinterInfo::oem_country>},
    {"media_auth_cfg",            put::prefixedHex<&KVPrinterInfo::media_auth_cfg>},
    {"firmware_version",          put::text<&KVPrinterInfo::firmware_version>},
    {"kavrin_version",            put::text<&KVPrinterInfo::kavrin_version>},
    {"ethernet_deviceid",         put::text<&KVPrinterInfo::ethernet_deviceid>},
    {"wireless_physical_address", put::hardwareAddress<&KVPrinterInfo::wireless_physical_address>},
});
/// What a host may set by itself, and its bits.
inline constexpr auto printerSections = sections<KVPrinterInfo>({
    {0x1, "printer_model",    put::text<&KVPrinterInfo::printer_model>},
    {0x2, "printhead_serial", put::text<&KVPrinterInfo::printhead_serial>},
});

// clang-format on

}  // namespace kvj::identity

#endif
