#include "words/tables.h"

#include "capabilities/tables.h"
#include "configuration/document.h"
#include "configuration/media.h"
#include "configuration/network.h"
#include "devicecontrol/tables.h"
#include "foundation/vocabulary.h"
#include "security/tables.h"
#include "status/counters.h"
#include "status/job.h"
#include "status/wireless.h"

namespace kvj::tests {

std::span<const NamedWords> wordTables() {
    static constexpr NamedWords tables[] = {
        named<cardMaterials>,
        named<coercivities>,
        named<coercivitiesWritten>,
        named<commsChannels>,
        named<commsChannelsInCapabilities>,
        named<contactlessEncoders>,
        named<contactlessEncodersWritten>,
        named<feederModes>,
        named<laminationTypes>,
        named<laminatorRegistrations>,
        named<laminatorWidths>,
        named<panels>,
        named<ribbonDescriptions>,
        named<ribbonNames>,
        named<ribbonTypes>,
        named<ribbonTypesWritten>,
        named<smartEncoders>,
        named<capabilities::encryptionAlgorithms>,
        named<capabilities::fontStyles>,
        named<capabilities::graphicFormats>,
        named<capabilities::laminatorTypesWritten>,
        named<capabilities::laminatorsWritten>,
        named<capabilities::magHeadTypes>,
        named<capabilities::magHeadTypesWritten>,
        named<capabilities::magStripeLocations>,
        named<capabilities::portTypes>,
        named<capabilities::portTypesWritten>,
        named<capabilities::printSystems>,
        named<capabilities::printSystemsWritten>,
        named<capabilities::protocols>,
        named<capabilities::sharpeningLevels>,
        named<capabilities::transports>,
        named<configuration::cryptoWords>,
        named<configuration::errorControls>,
        named<configuration::errorControlsWritten>,
        named<configuration::installedRegistrations>,
        named<configuration::installedWidths>,
        named<configuration::securityWords>,
        named<configuration::transferTypes>,
        named<configuration::usbSpeeds>,
        named<devicecontrol::calibrations>,
        named<devicecontrol::motorModes>,
        named<devicecontrol::motors>,
        named<devicecontrol::rfidModes>,
        named<devicecontrol::spoolTexts>,
        named<devicecontrol::spools>,
        named<devicecontrol::switchedDevices>,
        named<security::actionNames>,
        named<status::cipherWords>,
        named<status::cleaningStates>,
        named<status::jobStates>,
        named<status::laminatorStates>,
        named<status::printerStates>,
        named<status::securityWords>,
        named<status::wirelessStates>,
    };
    return tables;
}

}  // namespace kvj::tests
