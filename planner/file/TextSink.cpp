#include "planner/file/TextSink.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace planner {

namespace {

constexpr std::size_t kDeepestIndent = 200;

} // namespace

void TextSink::newLine(std::size_t level) {
    static const std::string spaces(2 * kDeepestIndent, ' ');
    put('\n');
    put(std::string_view(spaces).substr(0, 2 * std::min(level, kDeepestIndent)));
}

int TextSink::finish() {
    flush();
    return error_;
}

void TextSink::flush() {
    if (text_) {
        *text_ += buffer_;
        buffer_.clear();
        return;
    }
    std::string_view rest = buffer_;
    while (!rest.empty() && error_ == 0) {
        const ssize_t written = ::write(descriptor_, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            error_ = errno;
        }
    }
    buffer_.clear();
}

} // namespace planner
