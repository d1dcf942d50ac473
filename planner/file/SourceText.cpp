#include "planner/file/SourceText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace planner {

namespace {

/// Closes what was opened; standard input stays open.
class Descriptor {
public:
    explicit Descriptor(const std::string& path)
        : owned_(path != kStandardInput), value_(owned_ ? ::open(path.c_str(), O_RDONLY | O_CLOEXEC) : STDIN_FILENO) {}
    ~Descriptor() {
        if (owned_ && value_ >= 0) {
            ::close(value_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return value_; }

private:
    bool owned_;
    int value_;
};

std::string systemError() {
    return std::string("can't be read: ") + std::strerror(errno);
}

} // namespace

std::string sourceName(const std::string& path) {
    return path == kStandardInput ? "standard input" : path;
}

std::optional<std::string> readSource(const std::string& path, std::string& text) {
    constexpr std::size_t kStep = 1 << 18;
    const Descriptor file(path);
    struct stat status {};
    if (file.get() < 0 || ::fstat(file.get(), &status) != 0) {
        return systemError();
    }
    if (S_ISDIR(status.st_mode)) {
        return "is a directory; expected a plan file";
    }
    std::string content;
    std::size_t filled = 0;
    content.resize(S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) + 1 : kStep);
    for (;;) {
        const ssize_t count = ::read(file.get(), content.data() + filled, content.size() - filled);
        if (count == 0) {
            break;
        }
        if (count < 0 && errno != EINTR) {
            return systemError();
        }
        filled += static_cast<std::size_t>(count > 0 ? count : 0);
        if (filled == content.size()) {
            content.resize(2 * content.size() + kStep);
        }
    }
    content.resize(filled);
    text = std::move(content);
    return std::nullopt;
}

namespace {

unsigned char byteAt(std::string_view text, std::size_t offset) {
    return offset < text.size() ? static_cast<unsigned char>(text[offset]) : 0;
}

bool isAscii(std::string_view text, std::size_t offset) {
    std::uint64_t block = 0;
    std::memcpy(&block, text.data() + offset, sizeof(block));
    const std::uint64_t zeroes = (block - 0x0101010101010101ULL) & ~block; // high bit where a byte is zero
    return ((block | zeroes) & 0x8080808080808080ULL) == 0;
}

/// Bytes of the character at the offset, 0 when none begins there.
std::size_t characterLength(std::string_view text, std::size_t offset) {
    struct Rule {
        unsigned char first, last;   // leading bytes
        unsigned char lowest, above; // range of the second byte
        std::size_t length;
    };
    // The narrower second bytes keep out overlong forms, surrogates, and what lies above U+10FFFF.
    static constexpr std::array<Rule, 8> kRules{{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                                 {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                                 {0xE1, 0xEC, 0x80, 0xBF, 3},
                                                 {0xED, 0xED, 0x80, 0x9F, 3},
                                                 {0xEE, 0xEF, 0x80, 0xBF, 3},
                                                 {0xF0, 0xF0, 0x90, 0xBF, 4},
                                                 {0xF1, 0xF3, 0x80, 0xBF, 4},
                                                 {0xF4, 0xF4, 0x80, 0x8F, 4}}};
    const unsigned char lead = byteAt(text, offset);
    for (const Rule& rule : kRules) {
        if (lead < rule.first || lead > rule.last) {
            continue;
        }
        bool good = byteAt(text, offset + 1) >= rule.lowest && byteAt(text, offset + 1) <= rule.above;
        for (std::size_t i = 2; i < rule.length; ++i) {
            good = good && (byteAt(text, offset + i) & 0xC0U) == 0x80U;
        }
        return good ? rule.length : 0;
    }
    return 0;
}

std::string hexByte(unsigned char byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return std::string("0x") + kDigits[byte >> 4U] + kDigits[byte & 0xFU];
}

bool looksLikeUtf16(std::string_view text) {
    const unsigned char first = byteAt(text, 0);
    const unsigned char second = byteAt(text, 1);
    const bool marked = (first == 0xFF && second == 0xFE) || (first == 0xFE && second == 0xFF);
    return text.size() >= 2 && (marked || (first == 0) != (second == 0));
}

} // namespace

std::optional<EncodingFault> findEncodingFault(std::string_view text) {
    if (looksLikeUtf16(text)) {
        return EncodingFault{0, "the file is in UTF-16 or another wide encoding; expected UTF-8"};
    }
    std::size_t offset = signatureLength(text);
    if (offset > 0 && signatureLength(text.substr(offset)) > 0) {
        return EncodingFault{offset, "a second signature of UTF-8; expected JSON text"};
    }
    while (offset < text.size()) {
        if (offset + 8 <= text.size() && isAscii(text, offset)) {
            offset += 8;
        } else if (const unsigned char byte = byteAt(text, offset); byte == 0) {
            return EncodingFault{offset, "a NUL byte; expected JSON text"};
        } else if (const std::size_t length = byte < 0x80 ? 1 : characterLength(text, offset); length > 0) {
            offset += length;
        } else {
            return EncodingFault{offset, "byte " + hexByte(byte) + " begins no character; expected UTF-8"};
        }
    }
    return std::nullopt;
}

bool isControlCharacter(char letter) {
    return static_cast<unsigned char>(letter) < 0x20 && letter != '\t' && letter != '\n' && letter != '\r';
}

bool holdsControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), isControlCharacter);
}

std::size_t signatureLength(std::string_view text) {
    return text.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0;
}

} // namespace planner
