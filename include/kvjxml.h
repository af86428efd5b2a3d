/// @file kvjxml.h
/// The whole of libkvjxml: reads the XML replies of a family of plastic-card printers into plain records and composes
/// the XML requests. Each header can be included by itself.
#ifndef KVJXML_H
#define KVJXML_H

#include "CapabilitiesRecords.h"
#include "ConfigurationRecords.h"
#include "FoundationRecords.h"
#include "IdentityRecords.h"
#include "KVJCapsParser.h"
#include "KVJConfigParser.h"
#include "KVJDeviceControl.h"
#include "KVJGetEIN.h"
#include "KVJHelper.h"
#include "KVJLogParser.h"
#include "KVJMediaParser.h"
#include "KVJNDC.h"
#include "KVJPrinterIDParser.h"
#include "KVJSecAction.h"
#include "KVJSensorParser.h"
#include "KVJSetCaps.h"
#include "KVJSetConfig.h"
#include "KVJSetMedia.h"
#include "KVJSetPrinterInfo.h"
#include "KVJSetSecActions.h"
#include "KVJStatusParser.h"
#include "MediaRecords.h"
#include "SecurityRecords.h"
#include "StatusRecords.h"
#include "kvjxml_export.h"
#include "kvjxml_version.h"

#endif
