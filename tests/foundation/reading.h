/// @file reading.h
/// What is expected of the reading of texts, and that TinyXML reads them in the same way.
#ifndef KVJXML_TESTS_FOUNDATION_READING_H
#define KVJXML_TESTS_FOUNDATION_READING_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

#include "support/tree.h"

namespace kvj::tests {

inline constexpr int none = 0;
inline constexpr int wrongElement = TiXmlBase::TIXML_ERROR_PARSING_ELEMENT;
inline constexpr int noName = TiXmlBase::TIXML_ERROR_FAILED_TO_READ_ELEMENT_NAME;
inline constexpr int wrongValue = TiXmlBase::TIXML_ERROR_READING_ELEMENT_VALUE;
inline constexpr int wrongAttribute = TiXmlBase::TIXML_ERROR_READING_ATTRIBUTES;
inline constexpr int wrongEmptyTag = TiXmlBase::TIXML_ERROR_PARSING_EMPTY;
inline constexpr int wrongEndTag = TiXmlBase::TIXML_ERROR_READING_END_TAG;
inline constexpr int emptyDocument = TiXmlBase::TIXML_ERROR_DOCUMENT_EMPTY;

struct Reading {
    std::string_view text;
    std::string_view tree;  ///< as treeOf writes it
    int error = none;
};

inline void expectReadings(std::initializer_list<Reading> readings) {
    for (const auto& [text, tree, error] : readings) {
        const Document document = documentOf(text);
        EXPECT_EQ(treeOf(document.top()), tree) << text;
        EXPECT_EQ(document.fault().id, error) << text;
        const Reference reference(text);
        EXPECT_EQ(treeOf(reference.document), tree) << "TinyXML, " << text;
        EXPECT_EQ(reference.error, error) << "TinyXML, " << text;
    }
}

}  // namespace kvj::tests

#endif
