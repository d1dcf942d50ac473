#include "QORPlatform/text/QORUnicodeString.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <utility>

namespace {

bool IsContinuation(char iByte) {
    return (static_cast<unsigned char>(iByte) & 0xC0U) == 0x80U;
}

std::size_t ExpectedLength(char iLead) {
    const auto lead = static_cast<unsigned char>(iLead);
    if (lead >= 0xF0U && lead < 0xF8U) {
        return 4;
    }
    if (lead >= 0xE0U && lead < 0xF0U) {
        return 3;
    }
    return lead >= 0xC0U && lead < 0xE0U ? 2 : 1;
}

/// Offset behind the character that begins at iOffset.
std::size_t NextCharacter(const std::string& iText, std::size_t iOffset) {
    const std::size_t end = iOffset + ExpectedLength(iText[iOffset]);
    std::size_t next = iOffset + 1;
    while (next < end && next < iText.size() && IsContinuation(iText[next])) {
        ++next;
    }
    return next;
}

std::size_t SkipCharacters(const std::string& iText, std::size_t iOffset, long long iCount) {
    for (long long i = 0; i < iCount && iOffset < iText.size(); ++i) {
        iOffset = NextCharacter(iText, iOffset);
    }
    return iOffset;
}

} // namespace

int QORUnicodeString::GetLengthInChar() const {
    int length = 0;
    for (std::size_t offset = 0; offset < _text.size(); offset = NextCharacter(_text, offset)) {
        ++length;
    }
    return length;
}

QORUnicodeString QORUnicodeString::SubString(int iFirst, int iCount) const {
    const long long before = static_cast<long long>(iFirst) - 1;
    const long long count = before < 0 ? iCount + before : iCount;
    const std::size_t begin = SkipCharacters(_text, 0, before);
    const std::size_t end = SkipCharacters(_text, begin, count);
    return QORUnicodeString(_text.substr(begin, end - begin));
}

void QORUnicodeString::ToUpper() {
    for (char& byte : _text) {
        if (byte >= 'a' && byte <= 'z') {
            byte = static_cast<char>(byte - 'a' + 'A');
        }
    }
}

void QORUnicodeString::BuildFromNum(int iNumber, const char* iFormat) {
    const std::string_view format(iFormat ? iFormat : "");
    if (format == "%d") {
        char digits[16];
        const auto result = std::to_chars(digits, digits + sizeof digits, iNumber);
        _text.assign(digits, result.ptr);
        return;
    }
    const int length = std::snprintf(nullptr, 0, format.data(), iNumber);
    std::string written(static_cast<std::size_t>(std::max(length, 0)), '\0');
    std::snprintf(written.data(), written.size() + 1, format.data(), iNumber);
    _text = std::move(written);
}

QORUnicodeString& QORUnicodeString::operator+=(const QORUnicodeString& iOther) {
    _text += iOther._text;
    return *this;
}
