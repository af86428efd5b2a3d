/// @file view.h
/// How a reply is shown.
#ifndef KVJXML_TOOL_VIEW_H
#define KVJXML_TOOL_VIEW_H

namespace kvj::tool {

struct View {
    bool words = false;    ///< codes have their words beside them, and changed values what was sent
    bool redacts = false;  ///< secrets are masked
    bool colours = false;  ///< of a text
};

}  // namespace kvj::tool

#endif
