// SPDX-License-Identifier: MIT
// The mesh tool: turns model files into the show's meshes, checks them and draws them.

#include "tools/arguments/arguments.h"
#include "tools/asc/commands.h"
#include "tools/files/png.h"
#include "tools/files/streams.h"

#include <iostream>
#include <sstream>

namespace {

/// The commands' options, and the exit status of the one that ran.
struct Tool {
    asc::ConvertOptions convert;
    asc::JoinOptions join;
    asc::CheckOptions check;
    asc::PreviewOptions preview;
    asc::SheetOptions sheet;
    std::optional<int> status;
};

/// Three numbers between commas; a single one stands for all three.
bool read_vector(std::string const& text, asc::Vec3& vector) {
    constexpr double most = asc::most_coordinate;
    std::vector<double> found;
    std::istringstream parts(text + ',');
    for (std::string part; std::getline(parts, part, ',');) {
        if (!read_number(part, -most, most, found.emplace_back())) return false;
    }
    if (found.size() == 1) found.resize(3, found[0]);
    if (found.size() == 3) vector = {found[0], found[1], found[2]};
    return found.size() == 3;
}

void add_vector(CLI::App& command, std::string const& name, asc::Vec3& vector, std::string const& help) {
    add_value(
        command, name, "X,Y,Z", [&](std::string const& v) { return read_vector(v, vector); },
        "a number from -1000000 to 1000000, or three between commas", help);
}

void add_vector(CLI::App& command, std::string const& name, std::optional<asc::Vec3>& vector, std::string const& help) {
    add_value(
        command, name, "X,Y,Z", [&](std::string const& v) { return read_vector(v, vector.emplace()); },
        "a number from -1000000 to 1000000, or three between commas", help);
}

void add_force(CLI::App& command, bool& force) {
    command.add_flag("--force", force, "Even if that replaces a file that is read");
}

CLI::Option* add_picture(CLI::App& command, std::string& path, std::string const& help) {
    auto const read = [&](std::string const& v) {
        path = v;
        return is_png_name(v);
    };
    return add_value(command, "-o", "OUT.png", read, "a path that ends in .png", help);
}

void add_convert(CLI::App& app, Tool& tool) {
    CLI::App& command = *app.add_subcommand("convert", "Make a mesh file from model files (OFF, OBJ, STL, glTF ...)");
    asc::ConvertOptions& options = tool.convert;
    command.add_option("INPUT", options.inputs, "Model files, one object from each; NAME=FILE names it")
        ->type_name("")
        ->required();
    command.add_option("-o", options.out, "The mesh file")->type_name("OUT.asc")->required();
    add_force(command, options.force);
    command.add_flag("--flat", options.finish.flat, "Keep only the lowest plane of a thin extrusion");
    auto const weld = [&](std::string const& v) { return read_number(v, 1e-6, 1e3, options.finish.weld); };
    add_value(command, "--weld", "DISTANCE", weld, "a number from 0.000001 to 1000",
              "Join points closer than this (0.00001)");
    add_vector(command, "--centre", options.finish.centre, "Move the middle of the box to this point");
    auto const size = [&](std::string const& v) { return read_number(v, 1e-4, 1e6, options.finish.size.emplace()); };
    add_value(command, "--refine", "SIZE", size, "a number from 0.0001 to 1000000",
              "Cut the facets into even triangles with no side longer than this");
    auto const angle = [&](std::string const& v) { return read_number(v, 0.0, 30.0, options.finish.min_angle); };
    add_value(command, "--min-angle", "DEGREES", angle, "a number from 0 to 30", "Smallest angle of these (20)");
    command.callback([&] { tool.status = asc::convert(options); });
}

void add_join(CLI::App& app, Tool& tool) {
    CLI::App& command = *app.add_subcommand("join", "Put the objects of mesh files one after the other in one file");
    command.add_option("INPUT", tool.join.inputs, "Mesh files; NAME=FILE names the only object of one")
        ->type_name("")
        ->required();
    command.add_option("-o", tool.join.out, "The mesh file")->type_name("OUT.asc")->required();
    add_force(command, tool.join.force);
    command.callback([&] { tool.status = asc::join(tool.join); });
}

void add_check(CLI::App& app, Tool& tool) {
    CLI::App& command =
        *app.add_subcommand("check", "Print every object and every fault; status 1 if there is a fault");
    command.add_option("FILE", tool.check.files, "Mesh files")->type_name("")->required();
    command.add_flag("--shatter", tool.check.shatter, "Also check that there are not too many faces to shatter");
    command.callback([&] { tool.status = asc::check(tool.check); });
}

void add_preview(CLI::App& app, Tool& tool) {
    CLI::App& command = *app.add_subcommand(
        "preview",
        "Draw a mesh file: a sheet of its objects, or with --camera what the show's camera sees, 1024 x 768");
    asc::PreviewOptions& options = tool.preview;
    asc::View& view = options.view;
    command.add_option("FILE", options.file, "A mesh file")->type_name("")->required();
    add_picture(command, options.out, "The picture (the file's name with .png)");
    add_force(command, options.force);
    command.add_option("--object", options.object, "Only this object")->type_name("NAME");
    add_vector(command, "--camera", options.camera, "Where the camera stands");
    add_vector(command, "--look", view.look, "Where it looks (0,0,0)");
    add_vector(command, "--scale", view.scale, "How big the model is (1); a single number is for x, y and z");
    add_vector(command, "--turn", view.turn, "How it is turned, degrees (0,0,0)");
    add_vector(command, "--at", view.at, "Where it is (0,0,0)");
    command.add_flag("--white", view.white, "White faces with black lines on black");
    command.add_flag_callback(
        "--no-lines", [&] { view.lines = false; }, "Faces only");
    command.add_flag("--all-lines", view.all_lines, "Every side of every face, as in a shattered model");
    command.callback([&] { tool.status = asc::preview(options); });
}

void add_sheet(CLI::App& app, Tool& tool) {
    CLI::App& command = *app.add_subcommand("sheet", "Draw a contact sheet of all objects, solid and with their lines");
    asc::SheetOptions& options = tool.sheet;
    command.add_option("FILE", options.files, "Mesh files")->type_name("")->required();
    add_picture(command, options.out, "The picture")->required();
    add_force(command, options.force);
    auto const columns = [&](std::string const& v) { return read_number(v, 1u, 100u, options.columns); };
    add_value(command, "--columns", "N", columns, "a number from 1 to 100", "Objects per row (5)");
    auto const panel = [&](std::string const& v) { return read_number(v, 20u, 2000u, options.panel); };
    add_value(command, "--panel", "PIXELS", panel, "a number from 20 to 2000", "Width of a picture (150)");
    command.callback([&] { tool.status = asc::sheet(options); });
}

int run(int argc, char** argv) {
    CLI::App app("Makes the show's meshes from model files, checks them and draws them.", "asc");
    set_up(app);
    app.require_subcommand(0, 1);
    Tool tool;
    for (auto const add : {add_convert, add_join, add_check, add_preview, add_sheet}) add(app, tool);
    if (auto const status = read_arguments(app, argc, argv)) return *status;
    if (!tool.status) std::cerr << app.help("", CLI::AppFormatMode::All);
    return tool.status.value_or(1);
}

} // namespace

int main(int argc, char** argv) {
    return run_tool("asc", [=] { return run(argc, argv); });
}
