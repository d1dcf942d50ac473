#pragma once

#include <optional>
#include <string>

namespace planner {

/// A new content for a file, which appears under its name in one step and only when it is complete: it is written to
/// another file of the same folder, which is then renamed. The permissions of the old file stay, and its
/// owner and group where the process may set them; a symbolic link goes on pointing to the file. What is no regular
/// file, a device say, is written to directly.
class FileReplacement {
public:
    explicit FileReplacement(const std::string& path);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Why nothing can be written, if so.
    std::optional<std::string> error() const;

    /// Where to write the content; negative when there is an error.
    int descriptor() const { return descriptor_; }

    /// The same by its path, for writers that open files themselves.
    const std::string& writtenPath() const { return temporary_.empty() ? path_ : temporary_; }

    /// The other file, which goes when the new content doesn't come into place; empty for what is written to directly.
    const std::string& temporaryPath() const { return temporary_; }

    /// Puts the content in place, unless writing it failed with the error number given. Gives what went wrong.
    std::optional<std::string> commit(int writeError);

private:
    void openTemporary();
    void close();

    std::string path_;
    std::string temporary_; // empty when the file is written to directly
    int descriptor_ = -1;
    int error_ = 0;
};

} // namespace planner
