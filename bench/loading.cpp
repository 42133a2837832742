// SPDX-License-Identifier: MIT
// How fast meshes are read: ours (on an OpenGL that does nothing), a literal getline-and-sscanf reader, the bare cost
// of touching every byte, and two well-known readers of the same geometry as OBJ. Bytes a second and triangles a
// second.

#include "kore/ascmodel.h"
#include "kore/readfile.h"
#include "tests/support/reference_asc.h"

#include <assimp/Importer.hpp>
#include <assimp/scene.h>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <tiny_obj_loader.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int columns = 250; // 100000 triangles
constexpr int rows = 200;

struct Point {
    float x, y, z;
};

Point point(int column, int row) {
    auto const x = static_cast<float>(column) / 10 - 12.5f;
    auto const y = static_cast<float>(row) / 10 - 10;
    return {x, y, 3 * std::sin(x * 0.7f) * std::cos(y * 0.9f)};
}

/// Calls with the three corners of every triangle of the hilly sheet, counted from 0.
template<typename Visit>
void each_triangle(Visit visit) {
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            int const a = r * (columns + 1) + c;
            int const d = a + columns + 1;
            visit(a, a + 1, d + 1);
            visit(d + 1, d, a);
        }
    }
}

template<typename Visit>
void each_point(Visit visit) {
    for (int r = 0; r <= rows; ++r) {
        for (int c = 0; c <= columns; ++c) visit(point(c, r));
    }
}

void write_asc(std::string const& path) {
    FILE* const file = std::fopen(path.c_str(), "wb");
    int i = 0;
    std::fprintf(file, "Named object: \"sheet\"\r\nTri-mesh, Vertices: %d     Faces: %d\r\nVertex list:\r\n",
                 (columns + 1) * (rows + 1), columns * rows * 2);
    each_point(
        [&](Point p) { std::fprintf(file, "Vertex %d:  X:%.6f     Y:%.6f     Z:%.6f\r\n", i++, p.x, p.y, p.z); });
    std::fprintf(file, "Face list:\r\n");
    i = 0;
    each_triangle([&](int a, int b, int c) {
        std::fprintf(file, "Face %d:    A:%d B:%d C:%d AB:1 BC:1 CA:0\r\n", i++, a, b, c);
    });
    std::fclose(file);
}

void write_obj(std::string const& path) {
    FILE* const file = std::fopen(path.c_str(), "wb");
    std::fprintf(file, "o sheet\n");
    each_point([&](Point p) { std::fprintf(file, "v %.6f %.6f %.6f\n", p.x, p.y, p.z); });
    each_triangle([&](int a, int b, int c) { std::fprintf(file, "f %d %d %d\n", a + 1, b + 1, c + 1); });
    std::fclose(file);
}

/// The sheet in both formats, in a folder that goes with the program.
struct Sheet {
    Sheet() : folder(fs::temp_directory_path() / ("hardsilence-loading-" + std::to_string(getpid()))) {
        fs::create_directory(folder);
        write_asc(Path("sheet.asc"));
        write_obj(Path("sheet.obj"));
    }
    ~Sheet() { fs::remove_all(folder); }
    Sheet(Sheet const&) = delete;
    Sheet& operator=(Sheet const&) = delete;
    std::string Path(char const* name) const { return (folder / name).string(); }
    std::int64_t Size(char const* name) const { return static_cast<std::int64_t>(fs::file_size(folder / name)); }

    fs::path folder;
};

Sheet const& sheet() {
    static Sheet const the_sheet;
    return the_sheet;
}

void count_sheet(benchmark::State& state, char const* file) {
    state.SetBytesProcessed(state.iterations() * sheet().Size(file));
    state.SetItemsProcessed(state.iterations() * columns * rows * 2);
}

void OursSheet(benchmark::State& state) {
    kore::AscModel models(sheet().folder.string() + "/");
    for (auto _ : state) {
        if (models.LoadModel("sheet.asc") < 0) state.SkipWithError("not loaded");
    }
    count_sheet(state, "sheet.asc");
}
BENCHMARK(OursSheet)->Unit(benchmark::kMillisecond);

void ReferenceSheet(benchmark::State& state) {
    for (auto _ : state) {
        std::ifstream file(sheet().Path("sheet.asc"), std::ios::binary);
        benchmark::DoNotOptimize(reference::read_asc(file));
    }
    count_sheet(state, "sheet.asc");
}
BENCHMARK(ReferenceSheet)->Unit(benchmark::kMillisecond);

void LineEndsSheet(benchmark::State& state) {
    for (auto _ : state) {
        kore::FileText file;
        kore::read_file(sheet().Path("sheet.asc"), file);
        std::string_view const text = file.View();
        std::size_t lines = 0;
        char const* at = text.data();
        char const* const end = at + text.size();
        while (at != end) {
            auto const* feed = static_cast<char const*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
            if (!feed) break;
            at = feed + 1;
            ++lines;
        }
        benchmark::DoNotOptimize(lines);
    }
    count_sheet(state, "sheet.asc");
}
BENCHMARK(LineEndsSheet)->Unit(benchmark::kMillisecond);

void TinyObjSheet(benchmark::State& state) {
    for (auto _ : state) {
        tinyobj::attrib_t attributes;
        std::vector<tinyobj::shape_t> shapes;
        std::vector<tinyobj::material_t> materials;
        std::string warnings;
        std::string errors;
        std::string const path = sheet().Path("sheet.obj");
        if (!tinyobj::LoadObj(&attributes, &shapes, &materials, &warnings, &errors, path.c_str())) {
            state.SkipWithError("not loaded");
        }
        benchmark::DoNotOptimize(shapes.data());
    }
    count_sheet(state, "sheet.obj");
}
BENCHMARK(TinyObjSheet)->Unit(benchmark::kMillisecond);

void AssimpSheet(benchmark::State& state) {
    for (auto _ : state) {
        Assimp::Importer importer;
        aiScene const* const scene = importer.ReadFile(sheet().Path("sheet.obj"), 0);
        if (!scene || scene->mNumMeshes != 1) state.SkipWithError("not loaded");
    }
    count_sheet(state, "sheet.obj");
}
BENCHMARK(AssimpSheet)->Unit(benchmark::kMillisecond);

/// Every mesh file of data/, once.
void OursShowFiles(benchmark::State& state) {
    std::int64_t bytes = 0;
    std::vector<std::string> names;
    for (fs::directory_entry const& entry : fs::directory_iterator("data")) {
        if (entry.path().extension() != ".asc") continue;
        names.push_back(entry.path().filename().string());
        bytes += static_cast<std::int64_t>(entry.file_size());
    }
    for (auto _ : state) {
        kore::AscModel models("data/");
        for (std::string const& name : names) {
            if (models.LoadModel(name) < 0) state.SkipWithError("not loaded");
        }
    }
    state.SetBytesProcessed(state.iterations() * bytes);
}
BENCHMARK(OursShowFiles)->Unit(benchmark::kMillisecond);

} // namespace
