/// @file shared/panel.h
/// A language of the operator control panel, as capabilities and configuration have it.
#ifndef KVJXML_SHARED_PANEL_H
#define KVJXML_SHARED_PANEL_H

#include "CapabilitiesRecords.h"
#include "foundation/both.h"

namespace kvj {

// clang-format off

/// "ocp_language"
inline constexpr auto panelLanguage = bothWays<Kavrin::_OCPLanguageCaps>({
    {"type", both::number<&Kavrin::_OCPLanguageCaps::type>},
    {"name", both::text<&Kavrin::_OCPLanguageCaps::name>},
});

// clang-format on

}  // namespace kvj

#endif
