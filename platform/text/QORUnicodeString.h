#pragma once

#include "QORPlatform/text/QORExport.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// Text of the platform. Kept as UTF-8; a character is a code point, and no operation cuts one.
class QOR_EXPORT QORUnicodeString {
public:
    QORUnicodeString() = default;

    /// Copies UTF-8 text up to the terminating zero; a null pointer gives the empty string.
    QORUnicodeString(const char* iText) : _text(iText ? iText : "") {}
    explicit QORUnicodeString(std::string iText) : _text(std::move(iText)) {}
    explicit QORUnicodeString(std::string_view iText) : _text(iText) {}

    /// Length in characters. In text that is no UTF-8 a character that is cut short counts as one, and so does each
    /// byte that begins none.
    int GetLengthInChar() const;

    /// iCount characters from position iFirst (1 is the first). What lies outside the text is left out.
    QORUnicodeString SubString(int iFirst, int iCount) const;

    /// Turns a to z into A to Z and leaves every other character alone.
    void ToUpper();

    /// Replaces the text by iNumber written in a printf format for one int, "%d" say, however long that gets. A null
    /// format, and one that can't be followed, gives the empty text.
    void BuildFromNum(int iNumber, const char* iFormat);

    /// 2 for identical texts, 0 for any others; case matters.
    int Compare(const QORUnicodeString& iOther) const { return _text == iOther._text ? 2 : 0; }

    /// Zero-terminated UTF-8, valid as long as the string isn't changed.
    operator const char*() const { return _text.c_str(); }

    /// The same text with its length in bytes.
    std::string_view View() const { return _text; }

    QORUnicodeString& operator+=(const QORUnicodeString& iOther);
    friend QORUnicodeString operator+(QORUnicodeString iLeft, const QORUnicodeString& iRight) {
        iLeft += iRight;
        return iLeft;
    }
    friend bool operator==(const QORUnicodeString& iLeft, const QORUnicodeString& iRight) {
        return iLeft._text == iRight._text;
    }
    friend bool operator==(const QORUnicodeString& iLeft, const char* iRight) {
        return iLeft._text == std::string_view(iRight ? iRight : "");
    }

private:
    std::string _text;
};

template <>
struct std::hash<QORUnicodeString> {
    std::size_t operator()(const QORUnicodeString& iText) const noexcept {
        return std::hash<std::string_view>()(iText.View());
    }
};
