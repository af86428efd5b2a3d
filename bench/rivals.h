/// @file rivals.h
/// The library's job, written by hand on other parsers: each reads a reply into the library's own record.
#ifndef KVJXML_BENCH_RIVALS_H
#define KVJXML_BENCH_RIVALS_H

#include <CapabilitiesRecords.h>
#include <ConfigurationRecords.h>
#include <MediaRecords.h>
#include <StatusRecords.h>

#include <span>
#include <string>

namespace kvj::bench {

/// Wide replies are converted in the process's locale, as a host's own reader has to. What a parser can keep from one
/// reply to the next, it keeps.
struct Rival {
    const char* name;
    void (*readStatus)(const std::wstring& reply, Kavrin::KVGeneralStatus& status);
    void (*readCapabilities)(const std::wstring& reply, Kavrin::_Capabilities& caps);
    void (*readConfiguration)(const std::string& reply, Kavrin::_KVConfiguration& configuration);
    void (*readCatalogue)(const std::string& reply, Kavrin::_KVMediaInfo& media);
};

std::span<const Rival> rivals();

}  // namespace kvj::bench

#endif
