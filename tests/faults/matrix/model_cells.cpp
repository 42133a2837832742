// SPDX-License-Identifier: MIT
// Model and mesh files that are wrong, in every command of the mesh tool.

#include "tests/faults/matrix/toolbox.h"

#include <random>

namespace faults {

namespace {

/// A model may take its reader some seconds before the tool gives it up.
constexpr std::chrono::milliseconds slow{20000};

void add_model(std::vector<Cell>& cells, std::string const& name, std::string const& file, std::string const& bytes) {
    cells.push_back({name, [=] {
                         return in_folder([&](std::string const& folder) { make_file(folder + file, bytes); },
                                          {.arguments = {asc, "convert", file, "-o", "c.asc"}},
                                          {.says = "asc: " + file + ": ", .prints = "", .within = slow});
                     }});
}

void add_coordinates(std::vector<Cell>& cells) {
    for (std::string const number :
         {"nan", "-nan", "inf", "-inf", "1e999", "1e38", "3.5e38", "1e30", "1000001", "-2e6"}) {
        std::string const corners[] = {number + " 0 0", "0 " + number + " 0", "0 0 " + number};
        for (std::string const& corner : corners) {
            add_model(cells, "vertex " + corner, "m.obj", "v " + corner + "\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        }
    }
}

void add_broken_models(std::vector<Cell>& cells) {
    std::string nodes;
    for (int i = 1; i <= 200000; ++i) nodes += "{\"children\":[" + std::to_string(i) + "]},";
    add_model(cells, "deep nodes", "m.gltf",
              "{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":[0]}],\"nodes\":[" + nodes +
                  "{\"mesh\":0}],\"meshes\":[{\"primitives\":[{\"attributes\":{}}]}]}");
    add_model(cells, "deep lists", "m.gltf", "{\"asset\":" + std::string(300000, '['));
    add_model(cells, "deep objects", "m.gltf", [] {
        std::string text;
        for (int i = 0; i < 100000; ++i) text += "{\"a\":";
        return text;
    }());
    add_model(cells, "no faces", "m.obj", "v 0 0 0\nv 1 0 0\nl 1 2\n");
    add_model(cells, "no area", "m.obj", "v 0 0 0\nv 1 0 0\nv 2 0 0\nf 1 2 3\n");
    add_model(cells, "corners that are not there", "m.obj", "v 0 0 0\nf 1 2 3\n");
    add_model(cells, "huge counts", "m.off", "OFF\n2000000000 2000000000 0\n1 1 1\n");
    add_model(cells, "counts below zero", "m.off", "OFF\n-1 -1 0\n1 1 1\n");
    std::string const off = "OFF\n4 4 0\n1 1 1\n1 -1 -1\n-1 1 -1\n-1 -1 1\n3 0 1 2\n3 0 2 3\n3 0 3 1\n3 1 3 2\n";
    for (std::size_t const cut : {0, 3, 6, 10, 14, 20, 37, 45, 53}) {
        add_model(cells, "cut at " + std::to_string(cut), "m.off", off.substr(0, cut));
    }
    std::minstd_rand generator(132);
    for (std::string const ending : {"obj", "off", "stl", "gltf", "glb", "ply", "dae", "3ds", "fbx", "x", "blend",
                                     "lwo", "md2", "ac", "unknown"}) {
        std::string noise(5000, '\0');
        for (char& byte : noise) byte = static_cast<char>(generator() >> 8);
        add_model(cells, "noise", "m." + ending, noise);
        add_model(cells, "nothing", "m." + ending, "");
        cells.back().name += " as " + ending;
        cells[cells.size() - 2].name += " as " + ending;
    }
}

std::vector<Deed> obstacles() {
    return {
        {"a folder", make_folder, ""},
        {"a FIFO", make_fifo, ""},
        {"a socket", make_socket, ""},
        {"a device", [](std::string const& path) { make_link_to("/dev/zero", path); }, ""},
        {"a link to itself", [](std::string const& path) { make_link_to(path, path); }, ""},
        {"a link into nowhere", [](std::string const& path) { make_link_to("none", path); }, ""},
        {"missing", [](std::string const&) {}, ""},
        {"4 GB of noughts", make_hole, ""},
    };
}

std::vector<Words> commands(std::string const& file) {
    return {{asc, "convert", file, "-o", "c.asc"},
            {asc, "convert", "N=" + file, "-o", "c.asc"},
            {asc, "join", "a.asc", file, "-o", "c.asc"},
            {asc, "check", file},
            {asc, "preview", file},
            {asc, "preview", file, "--camera", "0,0,3"},
            {asc, "sheet", "a.asc", file, "-o", "c.png"}};
}

void add_inputs(std::vector<Cell>& cells) {
    for (Deed const& deed : obstacles()) {
        int number = 0;
        for (Words const& arguments : commands("m.asc")) {
            cells.push_back({arguments[1] + std::to_string(++number) + " of " + deed.name, [=] {
                                 return in_folder([&](std::string const& folder) { deed.act(folder + "m.asc"); },
                                                  {.arguments = arguments}, {.says = "m.asc", .prints = ""});
                             }});
        }
    }
}

void add_own_inputs(std::vector<Cell>& cells) {
    Words const rows[] = {
        {asc, "convert", "square.obj", "-o", "square.obj"}, {asc, "convert", "N=square.obj", "-o", "./square.obj"},
        {asc, "convert", "square.obj", "-o", "link"},       {asc, "join", "a.asc", "b.asc", "-o", "a.asc"},
        {asc, "join", "a.asc", "b.asc", "-o", "b.asc"},     {asc, "preview", "a.png"},
        {asc, "sheet", "a.asc", "a.png", "-o", "a.png"}};
    for (Words const& arguments : rows) {
        std::string name;
        for (std::size_t i = 1; i < arguments.size(); ++i) name += arguments[i] + ' ';
        cells.push_back({name, [=] {
                             return in_folder(
                                 [](std::string const& folder) {
                                     make_file(folder + "a.png", square_asc());
                                     make_link_to("square.obj", folder + "link");
                                 },
                                 {.arguments = arguments}, {.says = "--force", .prints = ""},
                                 [](std::string const& folder) -> std::string {
                                     bool const same = support::read_all(folder + "square.obj") == square_obj() &&
                                                       support::read_all(folder + "a.png") == square_asc();
                                     return same ? "" : "an input is lost";
                                 });
                         }});
    }
}

} // namespace

std::vector<Cell> model_cells() {
    std::vector<Cell> cells;
    add_coordinates(cells);
    add_broken_models(cells);
    add_inputs(cells);
    add_own_inputs(cells);
    return cells;
}

} // namespace faults
