// SPDX-License-Identifier: MIT
#include "tools/files/newfile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int most_links = 40;
constexpr int most_tries = 1000;
constexpr std::size_t longest_ending = 16;
constexpr mode_t readable = 0666; // less the umask
constexpr mode_t permissions = 07777;

/// The path behind symbolic links, even if nothing is there.
/// @return an error number, 0 for none
int follow_links(fs::path& path) {
    for (int i = 0; i < most_links; ++i) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) return 0;
        fs::path const next = fs::read_symlink(path, error);
        if (error) return error.value();
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return ELOOP;
}

/// @return a name in the target's folder that ends as the target does
std::string temporary_name(fs::path const& target, int attempt) {
    std::string ending = target.extension().string();
    if (ending.size() > longest_ending) ending.clear();
    std::string const name = ".hardsilence-" + std::to_string(getpid()) + "-" + std::to_string(attempt) + ending;
    return (target.parent_path() / name).string();
}

/// File systems that cannot do it say so; that is no failure.
bool synchronised(int file) { return fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP; }

} // namespace

NewFile::NewFile(std::string const& path) : name(path) {
    fs::path place(path);
    if (int const number = follow_links(place); number != 0) {
        Fail(number);
        return;
    }
    target = place.string();
    struct stat old {};
    bool const replaces = stat(target.c_str(), &old) == 0;
    if (!replaces && errno != ENOENT) {
        Fail(errno);
    } else if (replaces && S_ISDIR(old.st_mode)) {
        Fail(EISDIR);
    } else if (replaces && !S_ISREG(old.st_mode)) {
        Fail("not a regular file");
    } else if (MakeTemporary() && replaces && fchmod(file, old.st_mode & permissions) != 0) {
        Fail(errno);
    }
}

NewFile::~NewFile() { Drop(); }

bool NewFile::MakeTemporary() {
    for (int attempt = 0; attempt < most_tries; ++attempt) {
        std::string const path = temporary_name(target, attempt);
        file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, readable);
        if (file >= 0) {
            temporary = path;
            return true;
        }
        if (errno != EEXIST) break;
    }
    return Fail(errno);
}

bool NewFile::Append(std::string_view bytes) {
    while (file >= 0 && !bytes.empty()) {
        ssize_t const written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return Fail(errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return file >= 0;
}

bool NewFile::Commit() {
    if (file < 0) return false;
    if (!synchronised(file)) return Fail(errno);
    int const closed = close(file);
    file = -1;
    if (closed != 0 || rename(temporary.c_str(), target.c_str()) != 0) return Fail(errno);
    temporary.clear();
    return true;
}

void NewFile::Drop() {
    if (file >= 0) close(file);
    file = -1;
    if (!temporary.empty()) unlink(temporary.c_str());
    temporary.clear();
}

bool NewFile::Fail(int number) { return Fail(std::generic_category().message(number)); }

bool NewFile::Fail(std::string const& reason) {
    error = "cannot write " + name + ": " + reason;
    Drop();
    return false;
}

std::string write_file(std::string const& path, std::string_view bytes) {
    NewFile file(path);
    file.Append(bytes);
    file.Commit();
    return file.Error();
}

std::string refuse_target(std::string const& path) { return NewFile(path).Error(); }
