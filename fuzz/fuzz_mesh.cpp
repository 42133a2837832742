// SPDX-License-Identifier: MIT
// Any bytes as a mesh file, loaded into both stores.

#include "fuzz/check.h"
#include "fuzz/strictgl.h"
#include "kore/ascfile.h"
#include "kore/ascmodel.h"

#include <cstdint>
#include <set>
#include <string>

/// Keeping freed memory pays only for small blocks: each reader has a table of 3.6 MB.
extern "C" char const* __asan_default_options() { return "quarantine_size_mb=16"; }

namespace {

struct Read {
    std::set<std::string> names;
    int objects = 0;
    bool fault = false;
    bool too_many_faces = false; ///< an object has more than the per-triangle store takes
};

Read read_objects(std::string const& path) {
    Read read;
    kore::AscFile file;
    fuzz::require(file.Open(path), "a regular file can be opened");
    for (;;) {
        kore::AscFile::Result const result = file.Next();
        read.fault = result == kore::AscFile::Result::Fault;
        if (result != kore::AscFile::Result::Object) break;
        ++read.objects;
        read.names.insert(file.GetName());
        if (file.GetFaceCount() > static_cast<int>(kore::SingleAscModelFull::max_faces)) read.too_many_faces = true;
    }
    fuzz::require(read.fault == !file.GetFault().empty(), "a fault has a message");
    fuzz::require(file.Next() == kore::AscFile::Result::End, "after the end there is nothing more to read");
    return read;
}

void load_ordinary(std::string const& path, Read const& read) {
    kore::AscModel models("");
    int const last = models.LoadModelFromFile(path, false);
    fuzz::require(last == (read.fault ? -1 : read.objects - 1), "the index of the last object is returned");
    fuzz::require(models.size() == static_cast<std::size_t>(read.objects), "objects before an error stay");
    for (std::string const& name : read.names) {
        unsigned int solid = 0;
        unsigned int lines = 0;
        fuzz::require(models.ModelByName(name, solid) && models.WfByName(name, lines), "an object is found by name");
        fuzz::require(solid != lines && strictgl::compiled(solid) && strictgl::compiled(lines), "its lists are there");
    }
    strictgl::reset();
}

void load_full(std::string const& path, Read const& read) {
    kore::AscModel models("");
    int const status = models.LoadModelFull(path);
    bool const fails = read.fault || read.too_many_faces || read.objects == 0;
    fuzz::require(status == (fails ? 0 : 1), "1 is returned after the last object, 0 after an error");
    fuzz::require(models.size() == 0, "the ordinary store stays empty");
    for (std::string const& name : read.names) {
        auto const found = models.ModelByNameFull(name);
        fuzz::require(found || read.too_many_faces, "an object is found by name");
        if (!found) continue;
        for (unsigned int i = 0; i < found->count; ++i) {
            fuzz::require(strictgl::compiled(found->face_models[i]) && strictgl::compiled(found->face_wireframes[i]),
                          "every triangle has its lists");
        }
    }
    strictgl::reset();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static fuzz::MemoryFile const file;
    fuzz::Quiet const quiet;
    std::string const path = file.Write(data, size);
    Read const read = read_objects(path);
    load_ordinary(path, read);
    load_full(path, read);
    return 0;
}
