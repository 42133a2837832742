// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A file in the making. It is written under a temporary name beside its target and takes the target's name when it is
/// whole; until then, and after any failure, the target is what it was.
///
/// A target that is a symbolic link stays one, and the file that it points at is replaced; one that is a FIFO, a device
/// or a folder is refused. A file that is replaced passes its permissions on. Other names (hard links) of a file that
/// is replaced keep the old content.
///
/// After the first failure all operations do nothing and return false, and Error() tells why.
class NewFile {
public:
    /// Makes the temporary file, empty.
    explicit NewFile(std::string const& path);
    /// Drops what is not committed.
    ~NewFile();
    NewFile(NewFile const&) = delete;
    NewFile& operator=(NewFile const&) = delete;

    bool Append(std::string_view bytes);

    /// Sees all of it onto the disk and gives it its name.
    bool Commit();

    /// Removes the temporary file.
    void Drop();

    /// The temporary file's path, for another program that writes it. It keeps the target's ending, ".png".
    std::string const& TemporaryPath() const { return temporary; }

    /// A sentence such as "cannot write a.png: No space left on device"; "" while nothing has failed.
    std::string const& Error() const { return error; }

private:
    bool Fail(int number);
    bool Fail(std::string const& reason);
    bool MakeTemporary();

    std::string name;      ///< as the caller gave it
    std::string target;    ///< links followed
    std::string temporary; ///< "" if there is none
    std::string error;
    int file = -1;
};

/// Writes a whole file as a NewFile.
/// @return "", or a sentence that tells why it is not written
std::string write_file(std::string const& path, std::string_view bytes);

/// Whether a file can be begun there: for work that takes long before there is anything to write.
/// @return "", or a sentence that tells why not
std::string refuse_target(std::string const& path);
