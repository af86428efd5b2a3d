// The layout of the identity, logs and read-backs is a contract with hosts that were built against an earlier release.
#include <cstddef>
#include <type_traits>

#include "IdentityRecords.h"

using Kavrin::__GETTRACK;
using Kavrin::_tagCleaningLogEntry;
using Kavrin::_tagLogServiceValues;
using Kavrin::_tagLogServiceXML;
using Kavrin::KVPrinterInfo;

static_assert(sizeof(_tagLogServiceValues) == 24);
static_assert(offsetof(_tagLogServiceValues, number) == 0);
static_assert(offsetof(_tagLogServiceValues, code) == 4);
static_assert(offsetof(_tagLogServiceValues, year) == 8);
static_assert(offsetof(_tagLogServiceValues, month) == 12);
static_assert(offsetof(_tagLogServiceValues, reserved) == 16);
static_assert(offsetof(_tagLogServiceValues, card_count) == 20);

static_assert(sizeof(_tagLogServiceXML) == 16);
static_assert(offsetof(_tagLogServiceXML, count) == 0);
static_assert(offsetof(_tagLogServiceXML, entries) == 8);

static_assert(sizeof(_tagCleaningLogEntry) == 12);
static_assert(offsetof(_tagCleaningLogEntry, number) == 0);
static_assert(offsetof(_tagCleaningLogEntry, cards) == 4);
static_assert(offsetof(_tagCleaningLogEntry, type) == 8);

static_assert(sizeof(__GETTRACK) == 768);
static_assert(offsetof(__GETTRACK, track1) == 0);
static_assert(offsetof(__GETTRACK, track2) == 256);
static_assert(offsetof(__GETTRACK, track3) == 512);

static_assert(sizeof(KVPrinterInfo) == 616);
static_assert(offsetof(KVPrinterInfo, vendor) == 0);
static_assert(offsetof(KVPrinterInfo, printer_model) == 32);
static_assert(offsetof(KVPrinterInfo, printer_serial) == 64);
static_assert(sizeof(KVPrinterInfo::printer_serial) == 4);
static_assert(offsetof(KVPrinterInfo, laminator_serial) == 68);
static_assert(offsetof(KVPrinterInfo, physical_address) == 72);
static_assert(sizeof(KVPrinterInfo::physical_address) == 6);
static_assert(offsetof(KVPrinterInfo, printhead_serial) == 78);
static_assert(offsetof(KVPrinterInfo, oem_country) == 110);
static_assert(offsetof(KVPrinterInfo, firmware_version) == 118);
static_assert(offsetof(KVPrinterInfo, laminator_fw_version) == 150);
static_assert(offsetof(KVPrinterInfo, lam_mab_fw_version) == 182);
static_assert(offsetof(KVPrinterInfo, reserved_version) == 214);
static_assert(offsetof(KVPrinterInfo, hcb_fw_version) == 246);
static_assert(offsetof(KVPrinterInfo, mab_fw_version) == 278);
static_assert(offsetof(KVPrinterInfo, kavrin_version) == 310);
static_assert(offsetof(KVPrinterInfo, ethernet_deviceid) == 342);
static_assert(sizeof(KVPrinterInfo::ethernet_deviceid) == 256);
static_assert(offsetof(KVPrinterInfo, media_auth_cfg) == 600);
static_assert(sizeof(KVPrinterInfo::media_auth_cfg) == 4);
static_assert(offsetof(KVPrinterInfo, reserved) == 604);
static_assert(offsetof(KVPrinterInfo, wireless_physical_address) == 608);
static_assert(sizeof(KVPrinterInfo::wireless_physical_address) == 6);
static_assert(std::is_aggregate_v<KVPrinterInfo> && std::is_trivial_v<KVPrinterInfo>);
