// The mesh tool: turns model files into the show's meshes, checks them and draws them.

#include "kore/asclimits.h"
#include "tools/asc/ascfile.h"
#include "tools/asc/check.h"
#include "tools/asc/creases.h"
#include "tools/asc/import.h"
#include "tools/asc/picture.h"
#include "tools/asc/refine.h"
#include "tools/asc/repair.h"

#include <SFML/System/Err.hpp>
#include <charconv>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr char help[] = R"(asc convert [options] [NAME=]IN... -o OUT.asc
    makes a mesh file of model files (OFF, OBJ, STL, glTF ...), one object from each
    --flat              keep only the lowest plane of a thin extrusion
    --weld DISTANCE     join points nearer than this (default 0.00001)
    --centre X,Y,Z      move the middle of the box there
    --refine SIZE       cut the facets into even triangles with no side longer than SIZE
    --min-angle DEG     smallest angle that --refine allows (0 to 30, default 20)
asc join [NAME=]IN.asc... -o OUT.asc
    puts the objects of mesh files one after the other in one file
asc check [--shatter] FILE...
    prints every object and every fault; status 1 when there is a fault
    --shatter           the objects are to be taken apart: tells when one has too many faces
asc preview FILE [-o OUT.png] [--object NAME] [view]
    draws the objects: a sheet of them, or with a view as the show's camera sees them, 1024 x 768
    --camera X,Y,Z      where the camera stands; --look X,Y,Z where it looks (0,0,0)
    --scale S|X,Y,Z     --turn X,Y,Z (degrees)     --at X,Y,Z     where and how big the model is
    --white             white faces on black        --no-lines, --all-lines
asc sheet FILE... -o OUT.png [--columns N] [--panel PIXELS]
    a contact sheet of all objects, solid and with their lines
)";

/// The arguments of one command, taken off from the front.
struct Arguments {
    std::vector<std::string> rest;
    std::string error; ///< the first thing wrong, "" while all is well

    void fail(std::string text) {
        if (error.empty()) error = std::move(text);
    }
    /// Takes the flag out; false when it is not there.
    bool flag(std::string_view name) { return std::erase(rest, name) > 0; }
    /// Takes the option and its value out.
    std::optional<std::string> value(std::string_view name) {
        for (std::size_t i = 0; i < rest.size(); ++i) {
            if (rest[i] != name) continue;
            if (i + 1 == rest.size()) {
                fail("option " + rest[i] + " needs a value");
                return {};
            }
            std::string const found = rest[i + 1];
            auto const at = rest.begin() + static_cast<std::ptrdiff_t>(i);
            rest.erase(at, at + 2);
            return found;
        }
        return {};
    }
    /// Up to three numbers between commas; a single one stands for all three.
    std::optional<asc::Vec3> numbers(std::string_view name) {
        auto const text = value(name);
        if (!text) return {};
        std::vector<double> found;
        char const* at = text->data();
        char const* const end = at + text->size();
        for (;;) {
            double number = 0.0;
            auto const [next, error_code] = std::from_chars(at, end, number);
            if (error_code != std::errc{}) break;
            found.push_back(number);
            at = next;
            if (at == end || *at != ',') break;
            ++at;
        }
        if (at == end && found.size() == 3) return asc::Vec3{found[0], found[1], found[2]};
        if (at == end && found.size() == 1) return asc::Vec3{found[0], found[0], found[0]};
        fail("option " + std::string(name) + ": '" + *text + "' is neither a number nor three between commas");
        return {};
    }
    std::optional<double> number(std::string_view name, double least, double most) {
        auto const found = numbers(name);
        if (!found) return {};
        if (found->x != found->y || found->x < least || found->x > most) {
            fail("option " + std::string(name) + " is out of range");
            return {};
        }
        return found->x;
    }
    /// What is left must be file names.
    void no_more_options() {
        for (std::string const& argument : rest)
            if (argument.starts_with("-")) fail("unknown option " + argument);
    }
};

int failed(std::string const& text) {
    std::cerr << "asc: " << text << '\n';
    return 1;
}

struct Input {
    std::string name, path;
};

Input input_of(std::string const& argument) {
    std::size_t const equals = argument.find('=');
    if (equals == std::string::npos) return {"", argument};
    return {argument.substr(0, equals), argument.substr(equals + 1)};
}

int save_objects(std::vector<asc::Object> const& objects, std::string const& out) {
    for (asc::Object const& object : objects) {
        if (object.name.empty() || object.name.find_first_of("\"\r\n") != std::string::npos)
            return failed("'" + object.name + "' cannot be the name of an object");
        if (object.faces.size() > static_cast<std::size_t>(kore::max_object_faces) ||
            object.vertices.size() > static_cast<std::size_t>(kore::max_object_vertices))
            return failed("object '" + object.name + "' has more than " + std::to_string(kore::max_object_faces) +
                          " faces or vertices");
    }
    std::string const text = asc::write(objects);
    if (auto const faults = asc::faults_of(asc::parse(text), false); !faults.empty())
        return failed(out + " would be faulty: " + faults.front().text);
    return asc::write_text(out, text) ? 0 : failed("cannot write " + out);
}

/// Reads mesh files for drawing or joining. Returns false after one line about what is wrong.
bool load(Input const& input, std::vector<asc::Object>& objects) {
    std::string text;
    if (!asc::read_text(input.path, text)) {
        failed("cannot read " + input.path);
        return false;
    }
    asc::ReadFile file = asc::parse(text);
    if (!file.faults.empty()) {
        failed(input.path + ":" + std::to_string(file.faults.front().line) + ": " + file.faults.front().text);
        return false;
    }
    if (!input.name.empty() && file.objects.size() != 1) {
        failed(input.path + " holds " + std::to_string(file.objects.size()) + " objects, only one can be named");
        return false;
    }
    for (auto& read : file.objects) {
        if (!input.name.empty()) read.object.name = input.name;
        objects.push_back(std::move(read.object));
    }
    return true;
}

int save_picture(std::optional<sf::Image> const& picture, std::string const& out) {
    if (!picture) return failed("OpenGL cannot draw such a picture off-screen");
    return picture->saveToFile(out) ? 0 : failed("cannot write " + out);
}

int convert(Arguments arguments) {
    auto const out = arguments.value("-o");
    bool const flat = arguments.flag("--flat");
    auto const middle = arguments.numbers("--centre");
    double const weld = arguments.number("--weld", 1e-6, 1e3).value_or(asc::weld_distance);
    auto const size = arguments.number("--refine", 1e-4, 1e6);
    auto const angle = arguments.number("--min-angle", 0.0, 30.0);
    arguments.no_more_options();
    if (!arguments.error.empty()) return failed(arguments.error);
    if (!out || arguments.rest.empty()) return failed("convert needs input files and -o OUT.asc");

    std::vector<asc::Object> objects;
    for (std::string const& argument : arguments.rest) {
        Input const input = input_of(argument);
        std::string error;
        auto some = asc::import_model(input.path, input.name, error);
        if (some.empty()) return failed(input.path + ": " + error);
        for (asc::Object& object : some) {
            if (flat) asc::keep_lowest_plane(object);
            if (middle) asc::centre(object, *middle);
            asc::clean(object, weld);
            asc::wind(object);
            if (object.faces.empty()) return failed(input.path + ": nothing is left of object '" + object.name + "'");
            if (size && !asc::refine(object, *size, angle.value_or(20.0)))
                return failed(input.path + ": the facets of object '" + object.name +
                              "' do not come to fit each other");
            asc::flag_creases(object);
            objects.push_back(std::move(object));
        }
    }
    return save_objects(objects, *out);
}

int join(Arguments arguments) {
    auto const out = arguments.value("-o");
    arguments.no_more_options();
    if (!arguments.error.empty()) return failed(arguments.error);
    if (!out || arguments.rest.empty()) return failed("join needs mesh files and -o OUT.asc");
    std::vector<asc::Object> objects;
    for (std::string const& argument : arguments.rest)
        if (!load(input_of(argument), objects)) return 1;
    return save_objects(objects, *out);
}

int check(Arguments arguments) {
    bool const shattered = arguments.flag("--shatter");
    arguments.no_more_options();
    if (!arguments.error.empty()) return failed(arguments.error);
    if (arguments.rest.empty()) return failed("check needs mesh files");
    int status = 0;
    for (std::string const& path : arguments.rest) {
        std::string text;
        if (!asc::read_text(path, text)) {
            status = failed("cannot read " + path);
            continue;
        }
        asc::ReadFile const file = asc::parse(text);
        for (auto const& read : file.objects) std::cout << path << ": " << asc::summary(read.object) << '\n';
        for (asc::Fault const& fault : asc::faults_of(file, shattered)) {
            std::cout << path << ':' << fault.line << ": " << fault.text << '\n';
            status = 1;
        }
    }
    return status;
}

int preview(Arguments arguments) {
    auto const out = arguments.value("-o");
    auto const only = arguments.value("--object");
    asc::View view;
    auto const camera = arguments.numbers("--camera");
    view.camera = camera.value_or(view.camera);
    view.look = arguments.numbers("--look").value_or(view.look);
    view.scale = arguments.numbers("--scale").value_or(view.scale);
    view.turn = arguments.numbers("--turn").value_or(view.turn);
    view.at = arguments.numbers("--at").value_or(view.at);
    view.white = arguments.flag("--white");
    view.lines = !arguments.flag("--no-lines");
    view.all_lines = arguments.flag("--all-lines");
    arguments.no_more_options();
    if (!arguments.error.empty()) return failed(arguments.error);
    if (arguments.rest.size() != 1) return failed("preview needs one mesh file");

    std::string const& path = arguments.rest.front();
    std::vector<asc::Object> objects;
    if (!load({"", path}, objects)) return 1;
    if (only) std::erase_if(objects, [&](asc::Object const& object) { return object.name != *only; });
    if (objects.empty()) return failed(path + " holds no object '" + only.value_or("") + "'");
    std::string const target = out.value_or(path.substr(0, path.rfind(".asc")) + ".png");
    return save_picture(camera ? asc::draw_view(objects, view, 1024, 768) : asc::draw_sheet(objects, 2, 380), target);
}

int sheet(Arguments arguments) {
    auto const out = arguments.value("-o");
    auto const columns = static_cast<unsigned int>(arguments.number("--columns", 1, 100).value_or(5));
    auto const panel = static_cast<unsigned int>(arguments.number("--panel", 20, 2000).value_or(150));
    arguments.no_more_options();
    if (!arguments.error.empty()) return failed(arguments.error);
    if (!out || arguments.rest.empty()) return failed("sheet needs mesh files and -o OUT.png");
    std::vector<asc::Object> objects;
    for (std::string const& path : arguments.rest)
        if (!load({"", path}, objects)) return 1;
    return save_picture(asc::draw_sheet(objects, columns, panel), *out);
}

} // namespace

int main(int argc, char* argv[]) {
    sf::err().rdbuf(nullptr); // its complaints about files would double ours
    std::vector<std::string> const words(argv + 1, argv + argc);
    if (words.empty() || words[0] == "--help" || words[0] == "-h") {
        (words.empty() ? std::cerr : std::cout) << help;
        return words.empty() ? 1 : 0;
    }
    Arguments arguments{{words.begin() + 1, words.end()}, ""};
    if (words[0] == "convert") return convert(std::move(arguments));
    if (words[0] == "join") return join(std::move(arguments));
    if (words[0] == "check") return check(std::move(arguments));
    if (words[0] == "preview") return preview(std::move(arguments));
    if (words[0] == "sheet") return sheet(std::move(arguments));
    return failed("unknown command '" + words[0] + "' (convert, join, check, preview, sheet)");
}
