/// @file comparison.h
/// Compares what two readers made of the same reply, field by field.
#ifndef KVJXML_BENCH_COMPARISON_H
#define KVJXML_BENCH_COMPARISON_H

#include <CapabilitiesRecords.h>
#include <ConfigurationRecords.h>
#include <MediaRecords.h>
#include <StatusRecords.h>

namespace kvj::bench {

/// @throws std::runtime_error, with the name and the fields that differ and their values, when there are any.
void compare(const char* name, const Kavrin::KVGeneralStatus& record, const Kavrin::KVGeneralStatus& expected);
void compare(const char* name, const Kavrin::_Capabilities& record, const Kavrin::_Capabilities& expected);
void compare(const char* name, const Kavrin::_KVConfiguration& record, const Kavrin::_KVConfiguration& expected);
void compare(const char* name, const Kavrin::_KVMediaInfo& record, const Kavrin::_KVMediaInfo& expected);

}  // namespace kvj::bench

#endif
