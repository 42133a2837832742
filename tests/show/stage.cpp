// SPDX-License-Identifier: MIT
#include "tests/show/stage.h"

#include "kore/ascfile.h"

#include <GL/gl.h>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <stdexcept>

namespace stage {

namespace {

constexpr char const* tile = "Begin(QUADS) Vertex(-50,-50,0) Vertex(-50,50,0) Vertex(50,50,0) Vertex(50,-50,0) End";

std::string name_of(gl::Draw const& draw) { return gl::list_content(draw.list) == tile ? "tile" : draw.name; }

constexpr float frames_per_second = 60;

/// The names of all objects in the files of data/.
std::set<std::string> const& object_names() {
    static std::set<std::string> const names = [] {
        std::set<std::string> found;
        for (auto const& entry : std::filesystem::directory_iterator("data")) {
            kore::AscFile file;
            if (entry.path().extension() != ".asc" || !file.Open(entry.path())) continue;
            while (file.Next() == kore::AscFile::Result::Object) found.insert(file.GetName());
        }
        return found;
    }();
    return names;
}

template<typename Describe>
std::vector<std::string> seen(Describe const& describe) {
    std::vector<std::string> once;
    for (gl::Draw const& draw : gl::draws()) {
        std::string const text = describe(draw);
        if (std::find(once.begin(), once.end(), text) == once.end()) once.push_back(text);
    }
    return once;
}

} // namespace

void name_lists() {
    for (std::string const& name : object_names()) {
        unsigned int list = 0;
        if (models->ModelByName(name, list)) gl::name_list(list, name);
        if (models->WfByName(name, list)) gl::name_list(list, name + "/lines");
        auto const full = models->ModelByNameFull(name);
        for (unsigned int i = 0; full && i < full->count; ++i) {
            gl::name_list(full->face_models[i], name + "#");
            gl::name_list(full->face_wireframes[i], name + "#/lines");
        }
    }
}

Stage::Stage(SceneFunction make, float length) : demo(length), playback(demo, frames_per_second, length) {
    gl::reset();
    models = std::make_shared<kore::AscModel>("data/");
    scene = make(length);
    demo.AddScene(scene);
    name_lists();
}

Stage& Stage::PlayTo(double beats) {
    do Step();
    while (static_cast<double>(Time()) < beats * static_cast<double>(beat));
    return *this;
}

void Stage::Draw() {
    glLoadIdentity();
    gl::clear_log();
    demo.Draw(true);
}

void Stage::DrawOnly(std::size_t enabler) {
    glLoadIdentity();
    gl::clear_log();
    Entity(enabler).Draw();
}

std::vector<std::string> Stage::Seen() {
    Draw();
    return seen([](gl::Draw const& draw) { return name_of(draw) + ":" + std::to_string(std::lround(draw.color[0])); });
}

std::vector<std::string> Stage::SeenNames() {
    Draw();
    return seen(name_of);
}

long Stage::Count(std::string const& name) {
    return std::count_if(gl::draws().begin(), gl::draws().end(), [&](gl::Draw const& d) { return name_of(d) == name; });
}

gl::Draw const& Stage::Find(std::string const& name, std::size_t n) {
    for (gl::Draw const& draw : gl::draws()) {
        if (name_of(draw) == name && n-- == 0) return draw;
    }
    throw std::runtime_error(name + " is not drawn");
}

} // namespace stage
