// SPDX-License-Identifier: MIT
#include "tools/asc/commands.h"

#include "tools/asc/ascfile.h"
#include "tools/asc/check.h"
#include "tools/asc/import.h"
#include "tools/files/newfile.h"
#include "tools/files/png.h"
#include "tools/files/streams.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace asc {

namespace {

/// @return 1, the exit status after a fault
int failed(std::string const& text) { return complain("asc", text); }

void print(std::string const& line) { std::cout << printable(line) << '\n'; }

/// @param error  what a writer returned
/// @return the exit status
int written(std::string const& error) { return error.empty() ? 0 : failed(error); }

struct Input {
    std::string name, path;
};

Input input_of(std::string const& argument) {
    std::size_t const equals = argument.find('=');
    std::error_code error;
    if (equals == std::string::npos || std::filesystem::exists(argument, error)) return {"", argument};
    return {argument.substr(0, equals), argument.substr(equals + 1)};
}

int save_objects(std::vector<Object> const& objects, std::string const& out) {
    for (Object const& object : objects) {
        if (object.name.empty() || object.name.find_first_of("\"\r\n") != std::string::npos) {
            return failed("'" + object.name + "' cannot be the name of an object");
        }
    }
    std::string const text = write(objects);
    if (auto const faults = faults_of(parse(text), false); !faults.empty()) {
        return failed(out + " would be faulty: " + faults.front().text);
    }
    return written(write_file(out, text));
}

/// Adds the objects of a mesh file.
/// @return false after one error line
bool load(Input const& input, std::vector<Object>& objects) {
    std::string text;
    if (!read_text(input.path, text)) {
        failed("cannot read " + input.path);
        return false;
    }
    ReadFile file = parse(text);
    if (!file.faults.empty()) {
        failed(input.path + ":" + std::to_string(file.faults.front().line) + ": " + file.faults.front().text);
        return false;
    }
    if (!input.name.empty() && file.objects.size() != 1) {
        failed(input.path + " holds " + std::to_string(file.objects.size()) + " objects, only one can be named");
        return false;
    }
    for (ReadObject& read : file.objects) {
        if (!input.name.empty()) read.object.name = input.name;
        objects.push_back(std::move(read.object));
    }
    return true;
}

bool load_all(std::vector<std::string> const& inputs, std::vector<Object>& objects) {
    return std::ranges::all_of(inputs, [&](std::string const& input) { return load(input_of(input), objects); });
}

int save_picture(std::optional<sf::Image> const& picture, std::string const& out) {
    if (!picture) return failed("OpenGL cannot draw such a picture off-screen");
    return written(write_png(out, *picture));
}

int save_sheet(std::vector<Object> const& objects, unsigned int columns, unsigned int panel, std::string const& out) {
    std::string error = refuse_size("the sheet", sheet_size(objects.size(), columns, panel));
    if (error.empty()) error = refuse_target(out);
    return error.empty() ? save_picture(draw_sheet(objects, columns, panel), out) : failed(error);
}

/// @return whether the result would replace a file that it is made of, after one error line
bool replaces_input(std::vector<std::string> const& inputs, std::string const& out) {
    for (std::string const& argument : inputs) {
        std::error_code error;
        if (!std::filesystem::equivalent(input_of(argument).path, out, error)) continue;
        failed(out + " is read, and would be replaced; --force does it");
        return true;
    }
    return false;
}

} // namespace

int convert(ConvertOptions const& options) {
    if (!options.force && replaces_input(options.inputs, options.out)) return 1;
    std::vector<Object> objects;
    for (std::string const& argument : options.inputs) {
        Input const input = input_of(argument);
        std::string error;
        for (Object& object : import_model(input.path, input.name, error)) {
            if (error.empty()) error = make_ready(object, options.finish);
            objects.push_back(std::move(object));
        }
        if (!error.empty()) return failed(input.path + ": " + error);
    }
    return save_objects(objects, options.out);
}

int join(JoinOptions const& options) {
    if (!options.force && replaces_input(options.inputs, options.out)) return 1;
    std::vector<Object> objects;
    return load_all(options.inputs, objects) ? save_objects(objects, options.out) : 1;
}

int check(CheckOptions const& options) {
    int status = 0;
    for (std::string const& path : options.files) {
        std::string text;
        if (!read_text(path, text)) {
            status = failed("cannot read " + path);
            continue;
        }
        ReadFile const file = parse(text);
        for (ReadObject const& read : file.objects) print(path + ": " + summary(read.object));
        for (Fault const& fault : faults_of(file, options.shatter)) {
            print(path + ":" + std::to_string(fault.line) + ": " + fault.text);
            status = 1;
        }
    }
    return status;
}

int preview(PreviewOptions const& options) {
    std::vector<Object> objects;
    if (!load({"", options.file}, objects)) return 1;
    if (!options.object.empty()) {
        std::erase_if(objects, [&](Object const& object) { return object.name != options.object; });
        if (objects.empty()) return failed(options.file + " holds no object '" + options.object + "'");
    }
    std::string out = options.out;
    if (out.empty()) out = std::filesystem::path(options.file).replace_extension(".png").string();
    if (!options.force && replaces_input({options.file}, out)) return 1;
    if (!options.camera) return save_sheet(objects, 2, 380, out);
    if (std::string const error = refuse_target(out); !error.empty()) return failed(error);
    View view = options.view;
    view.camera = *options.camera;
    return save_picture(draw_view(objects, view, 1024, 768), out);
}

int sheet(SheetOptions const& options) {
    if (!options.force && replaces_input(options.files, options.out)) return 1;
    std::vector<Object> objects;
    if (!load_all(options.files, objects)) return 1;
    return save_sheet(objects, options.columns, options.panel, options.out);
}

} // namespace asc
