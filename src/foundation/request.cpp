#include "foundation/request.h"

#include <cstring>
#include <memory>

#include "foundation/multibyte.h"

namespace kvj {

namespace {

/// Hands the printed text over to `deliver`; false when it cannot be printed.
template <class Deliver>
bool printed(const TiXmlDocument& request, Deliver deliver) {
    TiXmlPrinter printer;
    printer.SetIndent("    ");
    if (!request.Accept(&printer)) return false;
    deliver(printer.CStr());
    return true;
}

}  // namespace

TiXmlElement* beginRequest(TiXmlDocument& request, const char* rootName) {
    auto declaration = std::make_unique<TiXmlDeclaration>("1.0", "UTF-8", "");
    auto root = std::make_unique<TiXmlElement>(rootName);
    request.LinkEndChild(declaration.release());
    return request.LinkEndChild(root.release())->ToElement();
}

TiXmlElement* beginRequestAnew(TiXmlDocument& request, const char* rootName) {
    request.Clear();
    return beginRequest(request, rootName);
}

bool print(const TiXmlDocument& request, wchar_t* out, int capacity) {
    if (out == nullptr || capacity < 0) return false;
    return printed(request, [&](const char* text) { toWide(text, out, static_cast<std::size_t>(capacity)); });
}

bool print(const TiXmlDocument& request, char* out) {
    if (out == nullptr) return false;
    return printed(request, [&](const char* text) { std::memcpy(out, text, std::strlen(text) + 1); });
}

bool save(const TiXmlDocument& request, const char* path) { return path != nullptr && request.SaveFile(path); }

}  // namespace kvj
