/// @file kvjxml.h
/// The whole of libkvjxml: reads the XML replies of a family of plastic-card printers into plain records and composes
/// the XML requests. Each header can be included by itself.
#ifndef KVJXML_H
#define KVJXML_H

#include "FoundationRecords.h"
#include "IdentityRecords.h"
#include "KVJDeviceControl.h"
#include "KVJGetEIN.h"
#include "KVJHelper.h"
#include "KVJLogParser.h"
#include "KVJNDC.h"
#include "KVJSecAction.h"
#include "KVJSensorParser.h"
#include "KVJSetSecActions.h"
#include "KVJStatusParser.h"
#include "SecurityRecords.h"
#include "StatusRecords.h"
#include "kvjxml_export.h"

#endif
