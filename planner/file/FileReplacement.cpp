#include "planner/file/FileReplacement.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace planner {

namespace {

/// What a new file gets: read and write for all, less what the process's mask takes away.
unsigned defaultPermissions() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

int setPermissions(int descriptor, unsigned permissions) {
    return ::fchmod(descriptor, permissions) == 0 ? 0 : errno;
}

/// Gives a new file the owner and the permissions of the old one. Where the process may not give files away, the new
/// one stays its own; the bits by which a program runs as its owner or group are then left out.
int takeOver(int descriptor, const struct stat& old) {
    const bool isGiven = ::fchown(descriptor, old.st_uid, old.st_gid) == 0;
    return setPermissions(descriptor, old.st_mode & (isGiven ? 07777U : 0777U));
}

std::optional<std::string> message(int error) {
    if (error == 0) {
        return std::nullopt;
    }
    return std::string("can't be written: ") + std::strerror(error);
}

} // namespace

FileReplacement::FileReplacement(const std::string& path) : path_(path) {
    std::error_code unresolved; // a new file has nothing to resolve
    if (std::filesystem::is_symlink(path, unresolved)) {
        path_ = std::filesystem::weakly_canonical(path, unresolved).string();
    }
    struct stat status {};
    const bool exists = ::stat(path_.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) {
        error_ = EISDIR;
    } else if (exists && !S_ISREG(status.st_mode)) {
        descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
        error_ = descriptor_ < 0 ? errno : 0;
    } else if (exists && ::access(path_.c_str(), W_OK) != 0) {
        error_ = errno;
    } else {
        openTemporary();
        if (error_ == 0) {
            error_ = exists ? takeOver(descriptor_, status) : setPermissions(descriptor_, defaultPermissions());
        }
    }
}

void FileReplacement::openTemporary() {
    temporary_ = path_ + ".XXXXXX";
    descriptor_ = ::mkostemp(temporary_.data(), O_CLOEXEC);
    if (descriptor_ < 0) {
        error_ = errno;
        temporary_.clear();
    }
}

FileReplacement::~FileReplacement() {
    close();
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

void FileReplacement::close() {
    if (descriptor_ >= 0 && ::close(descriptor_) != 0 && error_ == 0) {
        error_ = errno;
    }
    descriptor_ = -1;
}

std::optional<std::string> FileReplacement::error() const {
    return message(error_);
}

std::optional<std::string> FileReplacement::commit(int writeError) {
    error_ = error_ == 0 ? writeError : error_;
    if (error_ == 0 && !temporary_.empty() && ::fsync(descriptor_) != 0) {
        error_ = errno;
    }
    close();
    if (error_ == 0 && !temporary_.empty()) {
        if (std::rename(temporary_.c_str(), path_.c_str()) == 0) {
            temporary_.clear();
        } else {
            error_ = errno;
        }
    }
    return message(error_);
}

} // namespace planner
