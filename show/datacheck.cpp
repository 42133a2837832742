// SPDX-License-Identifier: MIT
#include "show/datacheck.h"

#include "kore/ascfile.h"
#include "kore/soundtrackfile.h"

#include <cerrno>
#include <filesystem>
#include <set>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// @return "", or why the file is not read at all
std::string refuse_file(std::string const& path, std::size_t most_bytes) {
    std::error_code error;
    fs::file_status const status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) return path + " is missing";
    if (error) return path + " cannot be read: " + error.message();
    if (!fs::is_regular_file(status)) return path + " is not a regular file";
    if (fs::file_size(path, error) > most_bytes) {
        return path + " has more than " + std::to_string(most_bytes >> 20) + " MiB";
    }
    if (access(path.c_str(), R_OK) != 0) return path + " cannot be read: " + std::generic_category().message(errno);
    return "";
}

/// @return "", or what is wrong with the file
std::string refuse_content(MeshFile const& mesh, std::string const& path) {
    kore::AscFile file;
    if (!file.Open(path)) return path + " cannot be read";
    std::set<std::string> names;
    for (;;) {
        kore::AscFile::Result const result = file.Next();
        if (result == kore::AscFile::Result::End) break;
        if (result == kore::AscFile::Result::Fault) return path + ": " + file.GetFault();
        if (mesh.shattered && file.GetFaceCount() > kore::max_object_faces_full) {
            return path + " has an object of more than " + std::to_string(kore::max_object_faces_full) +
                   " faces, too many to be shattered";
        }
        names.insert(file.GetName());
    }
    for (char const* object : mesh.objects) {
        if (!names.contains(object)) return path + " holds no object '" + object + "'";
    }
    return "";
}

} // namespace

std::string check_meshes() {
    for (MeshFile const& mesh : mesh_files()) {
        std::string const path = std::string("data/") + mesh.name;
        std::string wrong = refuse_file(path, kore::max_mesh_file);
        if (wrong.empty()) wrong = refuse_content(mesh, path);
        if (!wrong.empty()) return wrong;
    }
    return "";
}

std::string check_soundtrack(std::string const& path) {
    std::string wrong = refuse_file(path, kore::soundtracklimits::most_bytes);
    if (!wrong.empty() || kore::may_be_soundtrack(path)) return wrong;
    return path + " is not Ogg Vorbis, FLAC or WAVE of up to " + std::to_string(kore::soundtracklimits::most_channels) +
           " channels";
}
