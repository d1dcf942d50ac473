#include "QORPlatform/text/QORUnicodeString.h"

#include <charconv>
#include <cstdio>
#include <cstring>

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

std::size_t SkipCharacters(const std::string& iText, std::size_t iOffset, int iCount) {
    for (int i = 0; i < iCount && iOffset < iText.size(); ++i) {
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
    const int before = iFirst - 1;
    const int count = before < 0 ? iCount + before : iCount;
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
    char buffer[64];
    if (std::strcmp(iFormat, "%d") == 0) {
        const auto result = std::to_chars(buffer, buffer + sizeof buffer, iNumber);
        _text.assign(buffer, result.ptr);
        return;
    }
    std::snprintf(buffer, sizeof buffer, iFormat, iNumber);
    _text = buffer;
}

QORUnicodeString& QORUnicodeString::operator+=(const QORUnicodeString& iOther) {
    _text += iOther._text;
    return *this;
}
