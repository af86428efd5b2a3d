/// @file KVJHelper.h
/// Reads typed values out of the elements of a printer's reply, and writes typed values as elements of a request.
///
/// Every reader and composer of the library converts in the same way, so what is said here about a conversion holds for
/// the whole vocabulary. Hosts need this class only to read or write elements that the library does not know.
///
/// The *text* of an element is the value of its first child node, whatever that node is: the text of `<a>12</a>` is
/// "12", that of `<a><b/></a>` is "b", and `<a/>` has none.
///
/// Numbers are read and written as the C functions named here do in the "C" locale, whatever locale the process is in.
#ifndef KVJXML_KVJ_HELPER_H
#define KVJXML_KVJ_HELPER_H

#include "FoundationRecords.h"
#include "kvjxml_export.h"

class TiXmlElement;

/// Stateless: all operations are static, use only their arguments, and may run in any number of threads at once on
/// separate elements. None keeps a pointer that it was given. A null element, name or word gives false; to the
/// operations that look words up, a null word is an unknown word.
class KVJXML_API KVJHelper {
public:
    // ---- Element text to value ----
    // True when the element had text, whether or not the text made sense; false, and `value` as it was, when it had
    // none. A text that is no number reads as 0, what follows a number is ignored, and a number too large for its type
    // wraps; only a long stops at its limits, and a float becomes infinite. The trailing bool has no effect.

    /// Reads a decimal number, as atoi does.
    static bool GetNumber(TiXmlElement* element, int& value, bool ignored = false);
    /// Reads a decimal number as atoi does and keeps its 32 bits: "-1" reads as 4294967295.
    static bool GetNumber(TiXmlElement* element, unsigned int& value, bool ignored = false);
    /// Reads a decimal number as atoi does and keeps its low 16 bits.
    static bool GetNumber(TiXmlElement* element, unsigned short& value, bool ignored = false);
    /// Reads a decimal number as atoi does and keeps its low **16** bits, zero-extended: "70000" reads as 4464.
    /// The printer's counters and action ids are 16-bit numbers, and hosts compare them as such.
    static bool GetNumber(TiXmlElement* element, unsigned long& value, bool ignored = false);
    /// Reads a decimal number, as atol does.
    static bool GetNumber(TiXmlElement* element, long& value, bool ignored = false);
    /// Reads a number with a decimal point, as atof does, narrowed to float.
    static bool GetNumber(TiXmlElement* element, float& value, bool ignored = false);

    /// Copies the element's text to the buffer that starts at `first`, with its terminator.
    /// @param capacity  the size of that buffer in characters, the terminator included.
    /// @return true when the whole text was copied. A text that does not fit is cut to `capacity - 1` characters,
    ///         terminated, and reported false; without text, or with a capacity of zero or less, false and untouched.
    static bool GetString(TiXmlElement* element, char& first, int capacity);

    /// Reads a truth word: 1 for exactly "enabled" or "yes", 0 for any other text. False and untouched without text.
    static bool GetBool(TiXmlElement* element, char& value);
    /// Reads a truth word: true for exactly "enabled" or "yes", false for any other text.
    /// Without text it stores false, unlike the other readers, and returns false.
    static bool GetBool(TiXmlElement* element, bool& value);

    /// Reads a hardware address such as "00:1a:2B:3c:4d:5e" into six bytes, as sscanf with
    /// "%02x:%02x:%02x:%02x:%02x:%02x" does. Bytes that the text does not give become 0.
    /// @param address  a buffer of at least 6 bytes.
    /// @return true when the element had text; false, and the buffer as it was, when it had none or is null.
    static bool GetPhysicalAddress(TiXmlElement* element, unsigned char* address);

    // ---- Attribute to value ----

    /// Reads an integer attribute, as sscanf with "%d" does. False and untouched when the attribute is missing or does
    /// not begin with a number.
    static bool GetInt(TiXmlElement* element, char* name, int& value);
    /// The same as GetInt.
    static bool GetNumberFromAttr(TiXmlElement* element, char* name, int& value);
    /// Reads an attribute with a decimal point, as sscanf with "%lf" does, narrowed to float. False and untouched when
    /// the attribute is missing or does not begin with a number.
    static bool GetNumberFromAttr(TiXmlElement* element, char* name, float& value);
    /// Reads an unsigned 16-bit attribute, as sscanf with "%hu" does. True when the attribute exists, even if it is no
    /// number; `value` is then left as it was.
    static bool GetShort(TiXmlElement* element, char* name, unsigned short& value);
    /// Reads a truth word from an attribute: 1 for exactly "enabled" or "yes", 0 for any other. False and untouched
    /// when the attribute is missing.
    static bool GetBool(TiXmlElement* element, char* name, char& value);
    /// Copies an attribute to `buffer` of `capacity` characters; bounds and results as for the text reader above.
    static bool GetString(TiXmlElement* element, char* name, char* buffer, int capacity);
    /// Reserved: always false, and writes nothing. Readers that need an IPv4 address convert the element's text.
    static bool GetIP(TiXmlElement* element, char* name, unsigned long& address);

    // ---- Value to element ----
    // Each appends one child element `name` to `parent`, which owns it, with one text node. False, and nothing made,
    // when `parent`, `name` or a value that is a pointer is null.

    /// Adds an element without text, `<name />`.
    /// @return the new element, owned by `parent`; null when `parent` or `name` is null.
    static TiXmlElement* AddTag(TiXmlElement* parent, char* name);
    /// Writes a text as it is given. TinyXML escapes it when the document is printed. An empty text gives
    /// `<name></name>`.
    static bool AddTagString(TiXmlElement* parent, char* name, const char* value);
    /// Writes a number with "%d".
    static bool AddTagNumber(TiXmlElement* parent, char* name, int value);
    /// Writes a number with "%u".
    static bool AddTagUnsigned(TiXmlElement* parent, char* name, unsigned int value);
    /// Writes a number with "%ld".
    static bool AddTagLong(TiXmlElement* parent, char* name, long value);
    /// Writes a number with "%.4f": 0.1 as "0.1000". A number of any size is written whole.
    static bool AddTagFloat(TiXmlElement* parent, char* name, float value);
    /// Writes a number with "%lf": 0.1 as "0.100000". A number of any size is written whole.
    static bool AddTagDouble(TiXmlElement* parent, char* name, double value);
    /// Writes "yes" for any value but zero, "no" for zero.
    static bool AddTagBool(TiXmlElement* parent, char* name, long value);
    /// Writes six bytes as "00:1a:2b:3c:4d:5e", in lower case.
    static bool AddTagPhysicalAddress(TiXmlElement* parent, char* name, const unsigned char* address);
    /// Writes a setting with its range: attributes "min" and "max", and the value as text, each with "%d".
    static bool AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxVal& setting);
    /// Writes a setting with its range: attributes "min" and "max" with "%.2f", and as text the **maximum** with
    /// "%.2f". The printer expects it so; the value itself is never sent in this form.
    static bool AddTagMinMaxVal(TiXmlElement* parent, char* name, const Kavrin::_MinMaxValFloat& setting);

    /// Sets a text attribute of the element itself. False when any argument is null.
    static bool AddTagAttrib(TiXmlElement* element, const char* name, const char* value);
    /// Sets a decimal integer attribute of the element itself. False when the element or the name is null.
    static bool AddTagAttrib(TiXmlElement* element, char* name, int value);

    // ---- Word to code ----
    // Each looks a NUL-terminated word up in a fixed table and returns its code, or the table's default for any other
    // word. Case counts, and the whole word has to match, unless the table says otherwise.

    /// Ribbon name to ribbon code, in any case: "YMCKO" 256, "YMCKOK" 257, "1/2 YMCKO" 258, "1/2 YMCKOKO" 259,
    /// "YMCPKO" 260, "KdO" 261, "KrO" 262, "Black" 263, "White" 264, "Red" 265, "Blue" 266, "Gold" 267, "Silver" 268,
    /// "YMCKLL" 269, "SrDYMCKO" 270, "Hologram" 271; any other 263.
    static int RibbonNameToInt(char* word);
    /// Ribbon description to ribbon code, in any case: "black mono" and "black" 263, "white" 264, "red" 265, "blue"
    /// 266, "gold" 267, "silver" 268, "ymcko" 256, "ymckok" 257, "1/2 ymcko" 258, "kdo" 261, "kro" and "ko" 262,
    /// "Hologram", "holo overlay" and "o" 271, "1/2 ymckoko" 259, "ymckoo" 272, "ymcoviko" and "ymcpko" 260, "sdymcko"
    /// 270, "ymckll" 269; any other 263.
    static int RibbonDescriptionToInt(char* word);
    /// Ribbon type: "dye_sub" 0; any other -1, "resin" too.
    static int RibbonTypeToInt(char* word);
    /// Smart-card encoder of the feeder, the first of these that occurs anywhere in the text: "contact" 0, "iclass" 1,
    /// "mifare" 2, "prox" 3, "uhf" 4, "legic" 5; none -1. So "contactless" reads as 0.
    static int FeederSmartToInt(char* word);
    /// Card material, the first of these that occurs anywhere in the text: "pvc" 1, "composite" 0; none -1.
    static int FeederTypeToInt(char* word);
    /// Coercivity of the magnetic stripe: "low" 1, "high" 2; any other 0. Kavrin::COERCIVITYTYPES has the words.
    static int CoercivityToInt(char* word);
    /// Lamination type: "2_side" 2, "1_side" 1; any other 0.
    static int LaminationTypeToInt(char* word);
    /// Channel of the smart-card encoder: "serial" 1, "usb" 2; any other 0.
    static int CommsChannelToInt(char* word);
    /// Contactless encoder: "mifare" 1, "felica" 2, "uhf" 3, "hf" 4, "lf" 5; any other 0.
    static int ContactlessEncToInt(char* word);
    /// Ribbon panel: "yellow_panel" 0, "magenta_panel" 1, "cyan_panel" 2; any other -1.
    static int PanelToInt(char* word);
    /// Laminator patch width: "full" 0, "mag" 1, "signature" 2; any other -1.
    static int LaminatorWidthToInt(char* word);
    /// Laminator registration: "none" 0, "hologram" 1, "contact" 2; any other -1.
    static int LaminatorRegistrationToInt(char* word);
};

#endif
