#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace planner {

/// Buffered text on a file descriptor or into a string, which stay the caller's. The first write that fails is
/// remembered, and what comes after it is dropped, so that a writer needs to ask only once, at its end.
class TextSink {
public:
    explicit TextSink(int descriptor) : descriptor_(descriptor) {}
    explicit TextSink(std::string& text) : descriptor_(-1), text_(&text) {}
    TextSink(const TextSink&) = delete;
    TextSink& operator=(const TextSink&) = delete;

    void put(std::string_view text) {
        buffer_ += text;
        if (buffer_.size() >= kFull) {
            flush();
        }
    }
    void put(char letter) { put(std::string_view(&letter, 1)); }

    /// Line end, then two spaces a level, up to 200 levels: what is nested deeper isn't indented further, so that the
    /// text grows with the number of its lines and not with their depth.
    void newLine(std::size_t level);

    /// Writes what waits. Gives 0, or the error number of the first write that failed.
    int finish();

private:
    static constexpr std::size_t kFull = 1 << 16;

    void flush();

    int descriptor_;
    std::string* text_ = nullptr; // null for a descriptor
    int error_ = 0;
    std::string buffer_;
};

} // namespace planner
