#include "KVJSensorParser.h"

#include "foundation/reply.h"
#include "status/sensors.h"

namespace Kavrin {

using kvj::Reply;
using kvj::walk;
namespace tables = kvj::status;

bool KVJSensorParser::ParseSensorInfo(const wchar_t& reply, int length, KVSensorInfo& sensors) {
    return walk(Reply(reply, length).root("get_sensor_status"), sensors, tables::sensorInfo);
}

bool KVJSensorParser::ParseSensorStates(const char* reply, int /*ignored*/, _KVPrinterSensorInfo& states) {
    return walk(Reply(reply).root("get_sensor_status"), states, tables::sensorStates);
}

bool KVJSensorParser::parseSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::sensorInfo);
}

bool KVJSensorParser::getInputOutputSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::inputOutputSensors);
}

bool KVJSensorParser::getCardPathSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::cardPathSensors);
}

bool KVJSensorParser::getDoorSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::doorSensors);
}

bool KVJSensorParser::getPositioningSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::positioningSensors);
}

bool KVJSensorParser::getWebMediaSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::webMediaSensors);
}

bool KVJSensorParser::getRibbonSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::ribbonSensors);
}

bool KVJSensorParser::getRibbonColorSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::ribbonColorSensors);
}

bool KVJSensorParser::getInTMSensorInfo(TiXmlElement* element, KVSensorInfo& sensors) {
    return walk(element, sensors, tables::filmSensors);
}

bool KVJSensorParser::getSensorStates(TiXmlElement* element, _KVPrinterSensorInfo& states) {
    return walk(element, states, tables::sensorStates);
}

bool KVJSensorParser::getSensorState(TiXmlElement* element, _KVPrinterSensorInfo& states) {
    return walk(element, states, tables::sensorState);
}

}  // namespace Kavrin
