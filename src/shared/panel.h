/// @file shared/panel.h
/// A language of the operator control panel, as capabilities and configuration have it.
#ifndef KVJXML_SHARED_PANEL_H
#define KVJXML_SHARED_PANEL_H

#include "CapabilitiesRecords.h"
#include "foundation/read_rules.h"
#include "foundation/write_rules.h"

namespace kvjxml {

// clang-format off

/// "ocp_language"
inline constexpr auto panelLanguage = rows<Kavrin::_OCPLanguageCaps>({
    {"type", number<&Kavrin::_OCPLanguageCaps::type>},
    {"name", text<&Kavrin::_OCPLanguageCaps::name>},
});
inline constexpr auto panelLanguageTags = tags<Kavrin::_OCPLanguageCaps>({
    {"type", put::number<&Kavrin::_OCPLanguageCaps::type>},
    {"name", put::text<&Kavrin::_OCPLanguageCaps::name>},
});

// clang-format on

}  // namespace kvjxml

#endif
