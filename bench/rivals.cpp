#include "rivals.h"

#include <expat.h>
#include <libxml/parser.h>
#include <tinyxml2.h>

#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "by_hand.h"

namespace kvj::bench {

namespace {

/// A text that is kept for the next reply.
class Buffer {
public:
    std::string_view copy(std::string_view text) {
        reserve(text.size() + 1);
        std::memcpy(bytes_.data(), text.data(), text.size());
        return {bytes_.data(), text.size()};
    }
    std::string_view narrow(const std::wstring& wide) {
        // There is room for ASCII; what is longer is cut, as the library does.
        reserve(wide.size() + 1);
        const std::size_t length = std::wcstombs(bytes_.data(), wide.c_str(), wide.size() + 1);
        return {bytes_.data(), length == static_cast<std::size_t>(-1) ? 0 : length};
    }
    char* data() { return bytes_.data(); }

private:
    void reserve(std::size_t size) {
        if (bytes_.size() < size) bytes_.resize(size);
    }
    std::vector<char> bytes_;
};

void check(bool parsed, const char* parser) {
    if (!parsed) throw std::runtime_error(std::string(parser) + " did not parse the reply");
}

// ---- pugixml ------------------------------------------------------------------------------------------------------

/// In place, as it comes. Its own conversion of wide text takes longer than wcstombs and this.
class Pugixml {
public:
    class Element {
    public:
        explicit Element(pugi::xml_node node) : node_(node) {}
        explicit operator bool() const { return static_cast<bool>(node_); }
        [[nodiscard]] std::string_view name() const { return node_.name(); }
        [[nodiscard]] const char* text() const { return node_.child_value(); }
        [[nodiscard]] const char* attribute(const char* name) const {
            const pugi::xml_attribute found = node_.attribute(name);
            return found ? found.value() : nullptr;
        }
        // Blanks between elements are dropped, and a text among them has no name.
        [[nodiscard]] Element first() const { return Element(node_.first_child()); }
        [[nodiscard]] Element next() const { return Element(node_.next_sibling()); }

    private:
        pugi::xml_node node_;
    };

    Element parse(const std::wstring& reply) { return parseInPlace(buffer_.narrow(reply)); }
    Element parse(const std::string& reply) { return parseInPlace(buffer_.copy(reply)); }
    void release() { document_.reset(); }

private:
    Element parseInPlace(std::string_view text) {
        check(static_cast<bool>(document_.load_buffer_inplace(buffer_.data(), text.size())), "pugixml");
        return Element(document_.document_element());
    }
    Buffer buffer_;
    pugi::xml_document document_;
};

// ---- tinyxml2 ------------------------------------------------------------------------------------------------------

class Tinyxml2 {
public:
    class Element {
    public:
        explicit Element(const tinyxml2::XMLElement* element) : element_(element) {}
        explicit operator bool() const { return element_ != nullptr; }
        [[nodiscard]] std::string_view name() const { return element_->Name(); }
        [[nodiscard]] const char* text() const {
            const char* text = element_->GetText();
            return text == nullptr ? "" : text;
        }
        [[nodiscard]] const char* attribute(const char* name) const { return element_->Attribute(name); }
        [[nodiscard]] Element first() const { return Element(element_->FirstChildElement()); }
        [[nodiscard]] Element next() const { return Element(element_->NextSiblingElement()); }

    private:
        const tinyxml2::XMLElement* element_;
    };

    Element parse(const std::wstring& reply) { return parseText(buffer_.narrow(reply)); }
    Element parse(const std::string& reply) { return parseText(reply); }
    void release() { document_.Clear(); }

private:
    Element parseText(std::string_view text) {
        check(document_.Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS, "tinyxml2");
        return Element(document_.RootElement());
    }
    Buffer buffer_;
    tinyxml2::XMLDocument document_;
};

// ---- libxml2's tree ------------------------------------------------------------------------------------------------

class Libxml2 {
public:
    class Element {
    public:
        explicit Element(const xmlNode* node) : node_(node) {}
        explicit operator bool() const { return node_ != nullptr; }
        [[nodiscard]] std::string_view name() const { return characters(node_->name); }
        [[nodiscard]] const char* text() const {
            const xmlNode* child = node_->children;
            return child == nullptr || child->content == nullptr ? "" : characters(child->content);
        }
        [[nodiscard]] const char* attribute(const char* name) const {
            for (const xmlAttr* attribute = node_->properties; attribute != nullptr; attribute = attribute->next) {
                if (std::strcmp(characters(attribute->name), name) == 0) {
                    return attribute->children == nullptr ? "" : characters(attribute->children->content);
                }
            }
            return nullptr;
        }
        [[nodiscard]] Element first() const { return element(node_->children); }
        [[nodiscard]] Element next() const { return element(node_->next); }

    private:
        static const char* characters(const xmlChar* text) { return reinterpret_cast<const char*>(text); }
        static Element element(const xmlNode* node) {
            while (node != nullptr && node->type != XML_ELEMENT_NODE) node = node->next;
            return Element(node);
        }
        const xmlNode* node_;
    };

    Element parse(const std::wstring& reply) { return parseText(buffer_.narrow(reply)); }
    Element parse(const std::string& reply) { return parseText(reply); }
    void release() { document_.reset(); }

private:
    Element parseText(std::string_view text) {
        constexpr int options = XML_PARSE_NOBLANKS | XML_PARSE_COMPACT | XML_PARSE_NOENT | XML_PARSE_NONET |
                                XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
        document_.reset(
            xmlCtxtReadMemory(context_.get(), text.data(), static_cast<int>(text.size()), nullptr, nullptr, options));
        check(document_ != nullptr, "libxml2");
        return Element(xmlDocGetRootElement(document_.get()));
    }
    struct Free {
        void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };
    Buffer buffer_;
    std::unique_ptr<xmlParserCtxt, Free> context_{xmlNewParserCtxt()};
    std::unique_ptr<xmlDoc, Free> document_;
};

// ---- expat: its events into the smallest tree that will do ----------------------------------------------------------

class Expat {
    struct Node {
        std::size_t name;
        std::size_t text;       ///< 0 when there is none
        std::size_t attribute;  ///< where names and values begin, one behind the other; an empty name ends them
        std::size_t end;        ///< index of the next element that is no descendant
    };

public:
    class Element {
    public:
        Element(const Expat& tree, std::size_t at, std::size_t end) : tree_(&tree), at_(at), end_(end) {}
        explicit operator bool() const { return at_ != end_; }
        [[nodiscard]] std::string_view name() const { return characters(node().name); }
        [[nodiscard]] const char* text() const { return characters(node().text); }
        [[nodiscard]] const char* attribute(const char* name) const {
            const char* found = characters(node().attribute);
            while (*found != '\0') {
                const char* value = found + std::strlen(found) + 1;
                if (std::strcmp(found, name) == 0) return value;
                found = value + std::strlen(value) + 1;
            }
            return nullptr;
        }
        [[nodiscard]] Element first() const { return {*tree_, at_ + 1, node().end}; }
        [[nodiscard]] Element next() const { return {*tree_, node().end, end_}; }

    private:
        [[nodiscard]] const Node& node() const { return tree_->nodes_[at_]; }
        [[nodiscard]] const char* characters(std::size_t offset) const { return tree_->texts_.data() + offset; }
        const Expat* tree_;
        std::size_t at_;
        std::size_t end_;
    };

    Expat() = default;
    Expat(const Expat&) = delete;
    Expat& operator=(const Expat&) = delete;
    ~Expat() { XML_ParserFree(parser_); }

    Element parse(const std::wstring& reply) { return parseText(buffer_.narrow(reply)); }
    Element parse(const std::string& reply) { return parseText(reply); }
    void release() {}  // It keeps its memory for the next one.

private:
    Element parseText(std::string_view text) {
        nodes_.clear();
        open_.clear();
        texts_.assign(1, '\0');
        XML_ParserReset(parser_, nullptr);
        XML_SetUserData(parser_, this);
        XML_SetElementHandler(
            parser_,
            [](void* self, const XML_Char* name, const XML_Char** attributes) {
                static_cast<Expat*>(self)->begin(name, attributes);
            },
            [](void* self, const XML_Char* /*name*/) { static_cast<Expat*>(self)->end(); });
        XML_SetCharacterDataHandler(parser_, [](void* self, const XML_Char* part, int length) {
            static_cast<Expat*>(self)->characters({part, static_cast<std::size_t>(length)});
        });
        check(XML_Parse(parser_, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK, "expat");
        return {*this, 0, nodes_.size()};
    }

    void begin(const char* name, const char* const* attributes) {
        text_ = 0;
        Node node{append(name), 0, 0, 0};
        if (*attributes != nullptr) {
            node.attribute = texts_.size();
            for (; *attributes != nullptr; ++attributes) append(*attributes);
            texts_.push_back('\0');
        }
        open_.push_back(nodes_.size());
        nodes_.push_back(node);
        isFirst_ = true;
    }
    void end() {
        if (isFirst_ && text_ != 0) {
            texts_.push_back('\0');
            nodes_[open_.back()].text = text_;
        }
        isFirst_ = false;
        text_ = 0;
        nodes_[open_.back()].end = nodes_.size();
        open_.pop_back();
    }
    /// The text of an element that has no others, which comes in parts.
    void characters(std::string_view part) {
        if (!isFirst_) return;
        if (text_ == 0) text_ = texts_.size();
        texts_.insert(texts_.end(), part.begin(), part.end());
    }
    std::size_t append(const char* text) {
        const std::size_t place = texts_.size();
        texts_.insert(texts_.end(), text, text + std::strlen(text) + 1);
        return place;
    }

    Buffer buffer_;
    XML_Parser parser_ = XML_ParserCreate(nullptr);
    std::vector<Node> nodes_;
    std::vector<std::size_t> open_;  ///< elements that have not ended yet
    std::vector<char> texts_;        ///< all names and values, each with its NUL; the first is empty
    std::size_t text_ = 0;           ///< of the innermost element
    bool isFirst_ = false;           ///< no element stands in the innermost one
};

// ---- All of them ---------------------------------------------------------------------------------------------------

/// A parser is made for its first reply and kept; its tree is released with each.
template <class Parser>
void read(const auto& reply, auto reader) {
    static Parser parser;
    reader(parser.parse(reply));
    parser.release();
}

template <class Parser>
constexpr Rival rival(const char* name) {
    return {name,
            [](const auto& reply, auto& record) {
                read<Parser>(reply, [&](auto root) { by_hand::readStatus(root, record); });
            },
            [](const auto& reply, auto& record) {
                read<Parser>(reply, [&](auto root) { by_hand::readCapabilities(root, record); });
            },
            [](const auto& reply, auto& record) {
                read<Parser>(reply, [&](auto root) { by_hand::readConfiguration(root, record); });
            },
            [](const auto& reply, auto& record) {
                read<Parser>(reply, [&](auto root) { by_hand::readCatalogue(root, record); });
            }};
}

constexpr Rival all[] = {rival<Pugixml>("pugixml"), rival<Tinyxml2>("tinyxml2"), rival<Libxml2>("libxml2"),
                         rival<Expat>("expat")};

}  // namespace

std::span<const Rival> rivals() { return all; }

}  // namespace kvj::bench
