// Each template that a host may call, so that their bodies are compiled as well.
#include <kvjxml_words.hpp>

using Kavrin::_Capabilities;
using Kavrin::_CardInfo;
using Kavrin::_KVConfiguration;
using Kavrin::_tagAccessPoint;
using Kavrin::KVGeneralStatus;

struct OwnStatus : KVGeneralStatus {
    bool isOld;
};

bool isPrinting(const OwnStatus& status) {
    return kvjxml::name<&KVGeneralStatus::printerState>(status) == kvjxml::name<&KVGeneralStatus::printerState>(5) &&
           kvjxml::as_enum<&KVGeneralStatus::printerState>(status) == kvjxml::printer_state::printing &&
           kvjxml::name<&KVGeneralStatus::printerState>(kvjxml::printer_state::printing) == "printing" &&
           kvjxml::code<&KVGeneralStatus::printerState>("printing") == status.printerState;
}

bool holdsBytesAndEnumerations(const _CardInfo& card, const _KVConfiguration& configuration) {
    return kvjxml::name<&_CardInfo::coercivity>(card) == kvjxml::name<&_CardInfo::coercivity>(card.coercivity) &&
           kvjxml::code<&_CardInfo::coercivity>("low") == card.coercivity &&
           kvjxml::name<&_KVConfiguration::errorControl>(configuration.errorControl) == "med" &&
           kvjxml::code<&_KVConfiguration::errorControl>("med") == Kavrin::errorControlMedium;
}

bool hasOneSharpeningLevel(const _Capabilities& caps) {
    return kvjxml::names<&_Capabilities::imageSharpeningLevels>(caps).size() == 1 &&
           kvjxml::unnamed<&_Capabilities::imageSharpeningLevels>(caps) == 0 &&
           kvjxml::name<&_Capabilities::graphicFormats>(caps.graphicFormats[0]) == "bmp";
}

bool isOpen(const _tagAccessPoint& point, const KVGeneralStatus& status) {
    return kvjxml::names<&_tagAccessPoint::Security>(point.Security) ==
               kvjxml::names<&_tagAccessPoint::Security>(point) &&
           kvjxml::unnamed<&_tagAccessPoint::Security>(point.Security) == 0 && kvjxml::bits(status.alarms).empty();
}
