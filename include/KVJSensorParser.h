/// @file KVJSensorParser.h
/// Reads the printer's sensor reply in two further ways: the raw reading of every sensor, and its states as words.
#ifndef KVJXML_KVJ_SENSOR_PARSER_H
#define KVJXML_KVJ_SENSOR_PARSER_H

#include "StatusRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

namespace Kavrin {

/// Stateless. Replies, results and ownership are as for KVJStatusParser; an element whose attribute is missing, or is
/// no number, counts as one that could not be read.
class KVJXML_API KVJSensorParser {
public:
    /// Reads the raw readings of the reply "get_sensor_status".
    bool ParseSensorInfo(const wchar_t& reply, int length, KVSensorInfo& sensors);
    /// Reads the state words of the reply "get_sensor_status".
    /// @param reply    narrow text, **terminated by NUL**; null is a reply without the message.
    /// @param ignored  has no effect.
    bool ParseSensorStates(const char* reply, int ignored, _KVPrinterSensorInfo& states);

    // ---- Walkers: the same, for a host that holds the element already. A null element gives false. ----

    /// Reads the children of a "get_sensor_status" element: the groups below.
    bool parseSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of an "input_output" element.
    bool getInputOutputSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "card_path" element.
    bool getCardPathSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "doors" element.
    bool getDoorSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "positioning" element.
    bool getPositioningSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "web_media" element: "ribbon" and "intm".
    bool getWebMediaSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "ribbon" element: "encoder", "ribbon_sync_detection" and "color".
    bool getRibbonSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of a "color" element.
    bool getRibbonColorSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the children of an "intm" element, the transfer film's.
    bool getInTMSensorInfo(TiXmlElement* element, KVSensorInfo& sensors);
    /// Reads the "sensor_states" children of a "get_sensor_status" element.
    bool getSensorStates(TiXmlElement* element, _KVPrinterSensorInfo& states);
    /// Reads the children of a "sensor_states" element.
    bool getSensorState(TiXmlElement* element, _KVPrinterSensorInfo& states);
};

}  // namespace Kavrin

#endif
