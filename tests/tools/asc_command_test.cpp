// The mesh tool as a program: its commands, its messages and its exit status.

#include "tools/asc/ascfile.h"

#include <SFML/Graphics/Image.hpp>
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string said; ///< both streams
};

/// Each test works in an empty folder of its own.
class AscCommand : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() / ("asc_command_test." + std::to_string(getpid()));
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    Outcome call(std::string const& arguments) const {
        std::string const command = "cd '" + folder.string() + "' && '" ASC_PROGRAM "' " + arguments + " 2>&1";
        std::FILE* const pipe = popen(command.c_str(), "r");
        EXPECT_TRUE(pipe);
        std::string said;
        std::array<char, 4096> buffer{};
        while (std::size_t const n = std::fread(buffer.data(), 1, buffer.size(), pipe)) said.append(buffer.data(), n);
        int const status = pclose(pipe);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, said};
    }
    void put(std::string const& name, std::string const& text) const {
        ASSERT_TRUE(asc::write_text((folder / name).string(), text));
    }
    std::string get(std::string const& name) const {
        std::string text;
        EXPECT_TRUE(asc::read_text((folder / name).string(), text)) << name;
        return text;
    }

    fs::path folder;
};

/// A box 2 x 1 x 1 with faces of four corners, one of them turned the wrong way.
char const box_obj[] = "o box\n"
                       "v 0 0 0\nv 2 0 0\nv 2 1 0\nv 0 1 0\nv 0 0 1\nv 2 0 1\nv 2 1 1\nv 0 1 1\n"
                       "f 1 4 3 2\nf 5 6 7 8\nf 1 2 6 5\nf 7 6 2 3\nf 3 4 8 7\nf 1 4 8 5\n";

char const tetrahedron_off[] = "OFF\n4 4 0\n1 1 1\n1 -1 -1\n-1 1 -1\n-1 -1 1\n3 0 1 2\n3 0 2 3\n3 0 3 1\n3 1 3 2\n";

char const triangle_stl[] = "solid s\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 "
                            "0\nendloop\nendfacet\nendsolid s\n";

TEST_F(AscCommand, ConvertMakesAMeshWithoutFaults) {
    put("box.obj", box_obj);
    Outcome const run = call("convert box.obj -o box.asc");
    EXPECT_EQ(run.status, 0) << run.said;
    auto const file = asc::parse(get("box.asc"));
    EXPECT_TRUE(file.faults.empty());
    ASSERT_EQ(file.objects.size(), 1U);
    EXPECT_EQ(file.objects[0].object.name, "box");
    EXPECT_EQ(file.objects[0].object.vertices.size(), 8U);
    EXPECT_EQ(file.objects[0].object.faces.size(), 12U);
    EXPECT_NEAR(asc::volume(file.objects[0].object), 2.0, 1e-9);
    EXPECT_EQ(call("check box.asc").status, 0);
}

TEST_F(AscCommand, ConvertTakesSeveralInputsUnderTheNamesGiven) {
    put("a.off", tetrahedron_off);
    put("b.stl", triangle_stl);
    Outcome const run = call("convert One=a.off Two_b=b.stl -o both.asc");
    EXPECT_EQ(run.status, 0) << run.said;
    auto const file = asc::parse(get("both.asc"));
    ASSERT_EQ(file.objects.size(), 2U);
    EXPECT_EQ(file.objects[0].object.name, "One");
    EXPECT_EQ(file.objects[1].object.name, "Two_b");
}

TEST_F(AscCommand, ConvertFlatRefinedAndCentred) {
    put("box.obj", box_obj);
    Outcome const run = call("convert --flat --centre 0,0,0.5 --refine 0.3 --min-angle 25 box.obj -o flat.asc");
    EXPECT_EQ(run.status, 0) << run.said;
    auto const file = asc::parse(get("flat.asc"));
    ASSERT_EQ(file.objects.size(), 1U);
    asc::Object const& object = file.objects[0].object;
    EXPECT_EQ(asc::box_of(object).low, (asc::Vec3{-1, -0.5, 0.5}));
    EXPECT_EQ(asc::box_of(object).high, (asc::Vec3{1, 0.5, 0.5}));
    for (asc::Face const& face : object.faces) EXPECT_GT(asc::smallest_angle(object, face), 24.9);
    EXPECT_EQ(call("check --shatter flat.asc").status, 0);
}

TEST_F(AscCommand, ConvertGivesTheSameBytesEveryTime) {
    put("box.obj", box_obj);
    EXPECT_EQ(call("convert --refine 0.2 box.obj -o one.asc").status, 0);
    EXPECT_EQ(call("convert --refine 0.2 box.obj -o two.asc").status, 0);
    EXPECT_EQ(get("one.asc"), get("two.asc"));
}

TEST_F(AscCommand, JoinPutsFilesTogetherInOrder) {
    put("a.off", tetrahedron_off);
    EXPECT_EQ(call("convert Last=a.off -o last.asc").status, 0);
    EXPECT_EQ(call("convert First=a.off -o first.asc").status, 0);
    EXPECT_EQ(call("join first.asc last.asc -o both.asc").status, 0);
    EXPECT_EQ(get("both.asc"), get("first.asc") + "\r\n" + get("last.asc"));
    EXPECT_EQ(call("join New=last.asc -o new.asc").status, 0);
    EXPECT_TRUE(get("new.asc").starts_with("Named object: \"New\"\r\n"));
}

TEST_F(AscCommand, CheckPrintsEveryObjectAndEveryFaultWithItsLine) {
    put("a.off", tetrahedron_off);
    EXPECT_EQ(call("convert a.off -o a.asc").status, 0);
    Outcome const good = call("check a.asc");
    EXPECT_EQ(good.said, "a.asc: a: 4 vertices, 4 faces, x -1.000..1.000 y -1.000..1.000 z -1.000..1.000, closed, "
                         "smallest angle 60.0, 0% below 15\n");
    std::string text = get("a.asc");
    text.replace(text.find("AB:1 BC:1 CA:1"), 14, "AB:1 BC:0 CA:1");
    put("b.asc", text);
    EXPECT_EQ(call("check b.asc").status, 0) << "the neighbours still draw those edges";
    text.replace(text.find("Vertices: 4"), 11, "Vertices: 5");
    put("c.asc", text);
    Outcome const bad = call("check c.asc");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.said, "c.asc:8: expected vertex 4 with X, Y and Z; the header's counts may be wrong\n");
}

TEST_F(AscCommand, PreviewAndSheetWritePictures) {
    put("a.off", tetrahedron_off);
    EXPECT_EQ(call("convert a.off -o a.asc").status, 0);
    EXPECT_EQ(call("preview a.asc --camera 0,0,4 --look 0,0,0 --scale 1 --at 0,0,0 -o view.png").status, 0);
    sf::Image image;
    ASSERT_TRUE(image.loadFromFile((folder / "view.png").string()));
    EXPECT_EQ(image.getSize(), sf::Vector2u(1024, 768));
    EXPECT_EQ(image.getPixel(5, 5), sf::Color::White);
    // The nearest edge is one unit away at a height of 1, from (-1, -1) to (1, 1) in the middle of the picture.
    EXPECT_EQ(image.getPixel(512, 300), sf::Color::Black);
    EXPECT_EQ(call("preview a.asc").status, 0);
    EXPECT_TRUE(fs::exists(folder / "a.png"));
    EXPECT_EQ(call("sheet a.asc a.asc -o sheet.png").status, 0);
    EXPECT_TRUE(image.loadFromFile((folder / "sheet.png").string()));
}

TEST_F(AscCommand, SaysInOneLineWhatIsWrong) {
    put("a.off", tetrahedron_off);
    put("junk.off", "this is no model");
    put("points.obj", "v 0 0 0\nv 1 0 0\nl 1 2\n");
    put("line.obj", "v 0 0 0\nv 1 0 0\nv 2 0 0\nf 1 2 3\n");
    put("junk.asc", "this is no mesh\r\n");
    std::pair<std::string, std::string> const cases[] = {
        {"fly", "unknown command 'fly' (convert, join, check, preview, sheet)"},
        {"convert a.off", "convert needs input files and -o OUT.asc"},
        {"convert -o a.asc", "convert needs input files and -o OUT.asc"},
        {"convert a.off -o", "option -o needs a value"},
        {"convert --fast a.off -o a.asc", "unknown option --fast"},
        {"convert --refine nought a.off -o a.asc",
         "option --refine: 'nought' is neither a number nor three between commas"},
        {"convert --refine -1 a.off -o a.asc", "option --refine is out of range"},
        {"convert --min-angle 50 a.off -o a.asc", "option --min-angle is out of range"},
        {"convert --centre 1,2 a.off -o a.asc", "option --centre: '1,2' is neither a number nor three between commas"},
        {"convert none.off -o a.asc", "none.off: no such file"},
        {"convert . -o a.asc", ".: no such file"},
        {"convert line.obj -o a.asc", "line.obj: nothing is left of object 'line'"},
        {"convert points.obj -o a.asc", "points.obj: it holds no triangles"},
        {"convert a.off -o none/a.asc", "cannot write none/a.asc"},
        {"convert 'a\"b=a.off' -o a.asc", "'a\"b' cannot be the name of an object"},
        {"convert x=a.off x=a.off -o a.asc", "a.asc would be faulty: the name 'x' stands at line 1 too"},
        {"check", "check needs mesh files"},
        {"check none.asc", "cannot read none.asc"},
        {"check .", "cannot read ."},
        {"join junk.asc -o a.asc", "junk.asc:1: expected a line like: Named object: \"name\""},
        {"preview junk.asc", "junk.asc:1: expected a line like: Named object: \"name\""},
        {"preview", "preview needs one mesh file"},
        {"sheet -o a.png", "sheet needs mesh files and -o OUT.png"},
    };
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(arguments);
        Outcome const run = call(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.said, "asc: " + line + "\n");
    }
    Outcome const junk = call("convert junk.off -o a.asc");
    EXPECT_EQ(junk.status, 1);
    EXPECT_TRUE(junk.said.starts_with("asc: junk.off: "));
    EXPECT_EQ(std::count(junk.said.begin(), junk.said.end(), '\n'), 1);
}

TEST_F(AscCommand, WithoutACommandItTellsItsUse) {
    EXPECT_EQ(call("").status, 1);
    EXPECT_EQ(call("--help").status, 0);
    EXPECT_EQ(call("").said, call("--help").said);
}

} // namespace
