// SPDX-License-Identifier: MIT
#include "tools/rehearse/gooddata.h"

#include "kore/readfile.h"
#include "show/datacheck.h"
#include "show/show.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Another working folder, for its lifetime.
class InFolder {
public:
    explicit InFolder(std::string const& path) : before(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        std::error_code error;
        fs::current_path(path, error);
    }
    ~InFolder() {
        if (before < 0) return;
        if (fchdir(before) != 0) _exit(1); // nothing could be found any more
        close(before);
    }
    InFolder(InFolder const&) = delete;
    InFolder& operator=(InFolder const&) = delete;

private:
    int before;
};

/// @return false where it cannot be written
bool write_new_file(std::string const& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    return static_cast<bool>(file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())) << std::flush);
}

} // namespace

GoodData::GoodData() {
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "hardsilence-rehearse-XXXXXX").string();
    if (mkdtemp(name.data())) folder = name;
}

GoodData::~GoodData() {
    std::error_code error;
    if (!folder.empty()) fs::remove_all(folder, error);
}

GoodData::Result GoodData::Take() {
    // What is not there, or is no file, is told before anything is copied.
    mesh_fault = check_meshes();
    bool same = has_copy;
    if (mesh_fault.empty() && !Copy(folder + "/new/data/", same)) {
        mesh_fault = "the files of data/ cannot be copied to " + folder;
    }
    if (mesh_fault.empty() && same) return Result::Same;
    if (mesh_fault.empty()) {
        InFolder const in(folder + "/new"); // a file may have been written since
        mesh_fault = check_meshes();
    }
    if (!mesh_fault.empty()) return Result::Faulty;
    std::error_code error;
    fs::remove_all(folder + "/good", error);
    fs::rename(folder + "/new", folder + "/good", error);
    has_copy = true;
    return Result::New;
}

GoodData::Result GoodData::TakeSoundtrack() {
    sound_fault = check_soundtrack(soundtrack_file);
    kore::FileText text;
    if (sound_fault.empty() && !kore::read_file(soundtrack_file, text)) {
        sound_fault = std::string(soundtrack_file) + " cannot be read";
    }
    if (!sound_fault.empty()) return Result::Faulty;
    kore::FileText old;
    if (!soundtrack.empty() && kore::read_file(soundtrack, old) && text.View() == old.View()) return Result::Same;
    // Under a name of its own: the one before may be playing.
    std::string const name = folder + "/soundtrack" + std::to_string(soundtracks++);
    if (!write_new_file(name, text.View())) {
        sound_fault = std::string(soundtrack_file) + " cannot be copied to " + folder;
        return Result::Faulty;
    }
    std::error_code error;
    if (!soundtrack.empty()) fs::remove(soundtrack, error);
    soundtrack = name;
    return Result::New;
}

bool GoodData::Copy(std::string const& to, bool& same) {
    std::error_code error;
    fs::create_directories(to, error);
    for (MeshFile const& mesh : mesh_files()) {
        kore::FileText text;
        kore::FileText old;
        if (!kore::read_file(std::string("data/") + mesh.name, text)) return false;
        if (same) same = kore::read_file(folder + "/good/data/" + mesh.name, old) && text.View() == old.View();
        if (!write_new_file(to + mesh.name, text.View())) return false;
    }
    return true;
}

void GoodData::Within(std::function<void()> const& work) const {
    InFolder const in(folder + "/good");
    work();
}
