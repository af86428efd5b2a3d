/// @file sent.h
/// Adds values to a request as the printer takes them, and tells where one is not sent as it is asked for.
#ifndef KVJXML_FOUNDATION_SENT_H
#define KVJXML_FOUNDATION_SENT_H

#include <cstddef>

#include "FoundationRecords.h"
#include "foundation/member.h"
#include "foundation/tags.h"
#include "foundation/words.h"

namespace kvj {

// ---- Elements ----

/// The word of a code; `other` for a code without one.
/// @param field  the code's field as a pointer, where the row does not name it
bool addWord(Parent parent, const char* name, const Words& table, int code, const char* other,
             std::string_view field = {});

/// An element for each bit that has a word, in the order of the words.
bool addBits(Parent parent, const char* name, const Words& table, int bits);

/// A number with so many decimals.
bool addDecimal(Parent parent, const char* name, float value, int decimals);

/// A text, which need not be terminated in its field.
bool addField(Parent parent, const char* name, const char* field, std::size_t capacity);

/// A setting with its range.
bool addSetting(Parent parent, const char* name, const Kavrin::_MinMaxVal& setting);
/// A setting with its range. The printer expects the maximum as the element's text here, not the value.
bool addSetting(Parent parent, const char* name, const Kavrin::_MinMaxValFloat& setting);

/// "192.168.1.20"; only the low 32 bits count.
bool addIpAddress(Parent parent, const char* name, unsigned long address);

// ---- What a host passes as an argument; `field` is its name in the record of arguments ----

/// Tells of an argument that cannot be the name of an element. In a tree it is added all the same, unless it is null;
/// to a text only where somebody is told.
Parent addNamed(Parent parent, const char* name, std::string_view field);
/// An element with a text. Null adds nothing.
bool addArgument(Parent parent, const char* name, const char* text, std::string_view field);
/// The text of an element. Null is left out.
/// @param word  what stands for it, where the printer has a word of its own
bool addArgumentText(Parent element, const char* text, std::string_view field, const char* word = nullptr);
/// An attribute. Null is left out.
void setArgument(Parent element, const char* name, const char* text, std::string_view field);
/// An attribute with one decimal.
void setArgument(Parent element, const char* name, float value, std::string_view field);
/// The word of a code as an attribute, or as the element's text. A code without a word adds nothing.
void setWord(Parent element, const char* name, const Words& table, int code, std::string_view field);
void addWordText(Parent element, const Words& table, int code, std::string_view field);
/// Tells that an argument that the request cannot do without is null.
void need(Parent element, const char* text, std::string_view field, std::string_view path = {});

}  // namespace kvj

#endif
