#include "fields/records.h"

#include "fields/capabilities.h"
#include "fields/configuration.h"
#include "fields/identity.h"
#include "fields/media.h"
#include "fields/security.h"
#include "fields/status.h"

namespace kvj {

namespace {

template <class... Records>
constexpr std::array<const RecordType*, sizeof...(Records)> typesOf{&recordType<Records>...};

// clang-format off
constexpr const auto& all = typesOf<
    Kavrin::_MinMaxVal,
    Kavrin::_MinMaxValFloat,
    Kavrin::KVGeneralStatus,
    Kavrin::KVJobStatus,
    _MediaStatusInfo,
    MediaStatus,
    Kavrin::_KVJobInfo,
    Kavrin::KVJobList,
    Kavrin::KVCardCount,
    Kavrin::KVUpTimes,
    Kavrin::__MEMORY,
    Kavrin::KVCleaningStatus,
    Kavrin::_SENSOR,
    Kavrin::KVSensorInfo,
    Kavrin::_KVPrinterSensorInfo,
    Kavrin::_tagPackets,
    Kavrin::_tagWirelessStatus,
    Kavrin::_tagWirelessRadioStatus,
    Kavrin::_tagAccessPoint,
    Kavrin::_tagAccessPoints,
    Kavrin::_PortCaps,
    Kavrin::_InterfaceCaps,
    Kavrin::_OCPLanguageCaps,
    Kavrin::_SecurityCaps,
    Kavrin::_FontCaps,
    Kavrin::_TemplateCaps,
    Kavrin::_BarCodeCaps,
    Kavrin::_InternalEncoderInfo,
    Kavrin::_Capabilities,
    Kavrin::_NetworkParams,
    Kavrin::_WirelessParams,
    Kavrin::_USBTimeout,
    Kavrin::_PowerAdjustments,
    Kavrin::_ImagingParams,
    Kavrin::_RGBINT,
    Kavrin::_RibbonMotorParams,
    Kavrin::_MechanicalAdjustments,
    Kavrin::_RibbonInfo,
    Kavrin::_TransferTempInfo,
    Kavrin::_TransferSpeedInfo,
    Kavrin::_LaminationAdjustmentsNew,
    Kavrin::_CustomCardInfo,
    Kavrin::_ImageTransferTempInfo,
    Kavrin::_ImageTransferInfo,
    Kavrin::_laminate_common,
    Kavrin::_LaminateInstalled,
    Kavrin::_laminateControl,
    Kavrin::_Laminate,
    Kavrin::_LaminationIfo,
    Kavrin::_CleaningParams,
    Kavrin::_KVConfiguration,
    Kavrin::_CardInfo,
    Kavrin::_MediaRibbonInfo,
    Kavrin::_KVMediaInfo,
    Kavrin::_tagLogServiceValues,
    Kavrin::_tagLogServiceXML,
    Kavrin::_tagCleaningLogEntry,
    Kavrin::__GETTRACK,
    Kavrin::KVPrinterInfo,
    Kavrin::_tagHostDHKeys,
    Kavrin::_tagSecDirecXML,
    Kavrin::_tagSecReqXML,
    Kavrin::_tagSecKeys,
    Kavrin::_tagSecSetKeys,
    Kavrin::_tagSecActionXMLValues>;
// clang-format on

}  // namespace

std::span<const RecordType* const> recordTypes() { return all; }

}  // namespace kvj
