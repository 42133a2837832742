// SPDX-License-Identifier: MIT
// The mesh tool as a program: its commands, its messages and its exit status.

#include "tests/support/command.h"
#include "tests/support/temp.h"
#include "tools/asc/ascfile.h"

#include <SFML/Graphics/Image.hpp>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <sys/stat.h>

using support::Outcome;

namespace {

/// What a part of a picture holds.
struct Tally {
    int black = 0, white = 0; ///< pixels
    double ink = 0.0;         ///< pixels, a grey one counted by its darkness
};

Tally tally_of(sf::Image const& image, sf::IntRect const& part) {
    Tally tally;
    for (int y = part.top; y < part.top + part.height; ++y) {
        for (int x = part.left; x < part.left + part.width; ++x) {
            int const level = image.getPixel(static_cast<unsigned int>(x), static_cast<unsigned int>(y)).r;
            tally.black += level == 0 ? 1 : 0;
            tally.white += level == 255 ? 1 : 0;
            tally.ink += (255 - level) / 255.0;
        }
    }
    return tally;
}

/// Each test works in an empty folder of its own.
class AscCommand : public testing::Test {
protected:
    /// @param before  of the shell, in front of the program
    Outcome call(std::string const& arguments, std::string const& before = "") const {
        return support::run_shell(before + "'" ASC_PROGRAM "' " + arguments, {.folder = folder.Path("")});
    }
    void put(std::string const& name, std::string const& text) const { folder.Write(name, text); }
    std::string get(std::string const& name) const { return support::read_all(folder.Path(name)); }

    /// The tally of a part of the picture that `preview` draws, by default all of it.
    Tally preview(std::string const& arguments, sf::IntRect const& part = {0, 0, 1024, 768}) const {
        EXPECT_EQ(call("preview " + arguments + " -o view.png").status, 0);
        sf::Image image;
        EXPECT_TRUE(image.loadFromFile(folder.Path("view.png")));
        EXPECT_EQ(image.getSize(), sf::Vector2u(1024, 768));
        return tally_of(image, part);
    }

    support::TempFolder const folder;
};

/// A box 2 x 1 x 1 with faces of four corners, one of them turned the wrong way.
char const box_obj[] = "o box\n"
                       "v 0 0 0\nv 2 0 0\nv 2 1 0\nv 0 1 0\nv 0 0 1\nv 2 0 1\nv 2 1 1\nv 0 1 1\n"
                       "f 1 4 3 2\nf 5 6 7 8\nf 1 2 6 5\nf 7 6 2 3\nf 3 4 8 7\nf 1 4 8 5\n";

char const tetrahedron_off[] = "OFF\n4 4 0\n1 1 1\n1 -1 -1\n-1 1 -1\n-1 -1 1\n3 0 1 2\n3 0 2 3\n3 0 3 1\n3 1 3 2\n";

/// 2 x 2 around the origin, cut in two triangles.
char const square_obj[] = "v -1 -1 0\nv 1 -1 0\nv 1 1 0\nv -1 1 0\nf 1 2 3 4\n";

char const triangle_stl[] = "solid s\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 "
                            "0\nendloop\nendfacet\nendsolid s\n";

TEST_F(AscCommand, ConvertMakesAMeshWithoutFaults) {
    put("box.obj", box_obj);
    Outcome const run = call("convert box.obj -o box.asc");
    EXPECT_EQ(run.status, 0) << run.error;
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
    EXPECT_EQ(run.status, 0) << run.error;
    auto const file = asc::parse(get("both.asc"));
    ASSERT_EQ(file.objects.size(), 2U);
    EXPECT_EQ(file.objects[0].object.name, "One");
    EXPECT_EQ(file.objects[1].object.name, "Two_b");
}

TEST_F(AscCommand, ConvertFlatRefinedAndCentred) {
    put("box.obj", box_obj);
    Outcome const run = call("convert --flat --centre 0,0,0.5 --refine 0.3 --min-angle 25 box.obj -o flat.asc");
    EXPECT_EQ(run.status, 0) << run.error;
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
    EXPECT_EQ(good.output, "a.asc: a: 4 vertices, 4 faces, x -1.000..1.000 y -1.000..1.000 z -1.000..1.000, closed, "
                           "smallest angle 60.0, 0% below 15\n");
    std::string text = get("a.asc");
    text.replace(text.find("AB:1 BC:1 CA:1"), 14, "AB:1 BC:0 CA:1");
    put("b.asc", text);
    EXPECT_EQ(call("check b.asc").status, 0) << "the neighbours still draw those edges";
    text.replace(text.find("Vertices: 4"), 11, "Vertices: 5");
    put("c.asc", text);
    Outcome const bad = call("check c.asc");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.output, "c.asc:8: expected vertex 4 with X, Y and Z; the header's counts may be wrong\n");
}

TEST_F(AscCommand, PreviewDrawsFacesAndLinesAsTheShowDoes) {
    put("square.obj", square_obj);
    put("tetrahedron.off", tetrahedron_off);
    ASSERT_EQ(call("convert square.obj -o square.asc").status, 0);
    ASSERT_EQ(call("convert tetrahedron.off -o tetrahedron.asc").status, 0);
    // The square fills the middle half of the picture from 2 units away.
    constexpr int inside = 512 * 384, outside = 1024 * 768 - inside;
    Tally const faces = preview("square.asc --no-lines --camera 0,0,2");
    EXPECT_EQ(faces.black, inside);
    EXPECT_EQ(faces.white, outside);
    Tally const white = preview("square.asc --no-lines --camera 0,0,2 --white");
    EXPECT_EQ(white.white, inside);
    EXPECT_EQ(white.black, outside);
    // Half as high, on its side, to the left and twice as far away.
    std::string const moved = "square.asc --no-lines --camera 0,0,2 --scale 1,0.5,1 --turn 0,0,90 --at -1,0,-2";
    EXPECT_EQ(preview(moved).black, 128 * 192);
    EXPECT_EQ(preview(moved, {512 - 128 - 64, 384 - 96, 128, 192}).black, 128 * 192);
    // From 1 to the right, looking 1 to the right.
    EXPECT_EQ(preview("square.asc --no-lines --camera 1,0,2 --look 1,0,0", {0, 192, 512, 384}).black, inside);
    // White lines take from the black body; a square's diagonal is hidden unless all lines are drawn.
    std::string const aside = " --camera 0,0,4 --turn 20,30,0";
    EXPECT_LT(preview("tetrahedron.asc" + aside).black + 200, preview("tetrahedron.asc --no-lines" + aside).black);
    EXPECT_GT(preview("square.asc --white --all-lines" + aside).ink, preview("square.asc --white" + aside).ink + 50);
}

TEST_F(AscCommand, SheetShowsEveryObjectSolidAndItsLines) {
    put("square.obj", square_obj);
    put("box.obj", box_obj);
    ASSERT_EQ(call("convert square.obj -o square.asc").status, 0);
    ASSERT_EQ(call("convert box.obj -o box.asc").status, 0);
    ASSERT_EQ(call("sheet square.asc box.asc square.asc --columns 2 --panel 200 -o sheet.png").status, 0);
    sf::Image image;
    ASSERT_TRUE(image.loadFromFile(folder.Path("sheet.png")));
    EXPECT_EQ(image.getSize(), sf::Vector2u(2 * 424, 2 * 230));

    // A square is drawn 4/3 as wide as it is high, over 0.92 of the panel: 184 x 138 pixels. Four sides are black, the
    // diagonal is a third grey.
    Tally const solid = tally_of(image, {8, 8, 200, 200});
    EXPECT_NEAR(solid.ink, 184 * 138, 10);
    EXPECT_NEAR(tally_of(image, {216, 8, 200, 200}).ink, 2 * (184 + 138) + 184 / 3.0, 80);
    EXPECT_NEAR(image.getPixel(316, 108).r, 200, 40) << "the diagonal";
    EXPECT_EQ(image.getPixel(308, 60), sf::Color::White) << "between the lines";
    EXPECT_GT(tally_of(image, {8, 208, 408, 22}).black, 60) << "the caption";
    EXPECT_EQ(tally_of(image, {8, 238, 200, 200}).ink, solid.ink) << "an object twice";
    EXPECT_EQ(tally_of(image, {424, 230, 424, 230}).white, 0) << "nothing else there";

    // The box's nearest corner, turned by 25 degrees about x and -30 about y, lies at (150, 96); three lines meet
    // there.
    EXPECT_GT(image.getPixel(432 + 150, 8 + 96).r, 128) << "white on the body";
    EXPECT_LT(image.getPixel(640 + 150, 8 + 96).r, 128) << "black";
    EXPECT_EQ(image.getPixel(432 + 160, 8 + 80), sf::Color::Black) << "a face beside it";

    ASSERT_EQ(call("preview square.asc").status, 0);
    EXPECT_TRUE(image.loadFromFile(folder.Path("square.png"))) << "without a camera it draws a sheet";
    EXPECT_EQ(image.getSize(), sf::Vector2u(784, 410));
}

TEST_F(AscCommand, SaysInOneLineWhatIsWrong) {
    put("a.off", tetrahedron_off);
    put("junk.off", "this is no model");
    put("points.obj", "v 0 0 0\nv 1 0 0\nl 1 2\n");
    put("line.obj", "v 0 0 0\nv 1 0 0\nv 2 0 0\nf 1 2 3\n");
    put("junk.asc", "this is no mesh\r\n");
    EXPECT_EQ(call("convert a.off -o a.asc").status, 0);
    std::pair<std::string, std::string> const cases[] = {
        {"fly", "The following argument was not expected: fly"},
        {"convert a.off", "-o is required"},
        {"convert -o a.asc", "INPUT is required"},
        {"convert a.off -o", "-o: 1 required OUT.asc missing"},
        {"convert --fast a.off -o a.asc", "The following argument was not expected: --fast"},
        {"convert --refine none a.off -o a.asc", "--refine: 'none' is not a number from 0.0001 to 1000000"},
        {"convert --refine -1 a.off -o a.asc", "--refine: '-1' is not a number from 0.0001 to 1000000"},
        {"convert --weld nan a.off -o a.asc", "--weld: 'nan' is not a number from 0.000001 to 1000"},
        {"convert --min-angle 50 a.off -o a.asc", "--min-angle: '50' is not a number from 0 to 30"},
        {"convert --centre 1,2 a.off -o a.asc",
         "--centre: '1,2' is not a number from -1000000 to 1000000, or three between commas"},
        {"convert --centre 1,2,3, a.off -o a.asc",
         "--centre: '1,2,3,' is not a number from -1000000 to 1000000, or three between commas"},
        {"convert none.off -o a.asc", "none.off: no such file"},
        {"convert . -o a.asc", ".: no such file"},
        {"convert line.obj -o a.asc", "line.obj: nothing is left of object 'line'"},
        {"convert points.obj -o a.asc", "points.obj: it holds no triangles"},
        {"convert a.off -o none/a.asc", "cannot write none/a.asc: No such file or directory"},
        {"convert 'a\"b=a.off' -o a.asc", "'a\"b' cannot be the name of an object"},
        {"convert x=a.off x=a.off -o a.asc", "a.asc would be faulty: the name 'x' stands at line 1 too"},
        {"check", "FILE is required"},
        {"check none.asc", "cannot read none.asc"},
        {"check .", "cannot read ."},
        {"join junk.asc -o a.asc", "junk.asc:1: expected a line like: Named object: \"name\""},
        {"preview junk.asc", "junk.asc:1: expected a line like: Named object: \"name\""},
        {"preview a.asc b.asc", "The following argument was not expected: b.asc"},
        {"preview a.asc --object b", "a.asc holds no object 'b'"},
        {"preview", "FILE is required"},
        {"sheet a.asc -o none/a.png", "cannot write none/a.png: No such file or directory"},
        {"sheet a.asc --panel 2000 --columns 1000 -o a.png", "--columns: '1000' is not a number from 1 to 100"},
        {"sheet -o a.png", "FILE is required"},
        {"sheet a.asc -o a.jpg", "-o: 'a.jpg' is not a path that ends in .png"},
        {"sheet a.asc", "-o is required"},
    };
    for (auto const& [arguments, line] : cases) {
        SCOPED_TRACE(arguments);
        Outcome const run = call(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.error, "asc: " + line + "\n");
    }
    Outcome const junk = call("convert junk.off -o a.asc");
    EXPECT_EQ(junk.status, 1);
    EXPECT_TRUE(junk.error.starts_with("asc: junk.off: "));
    EXPECT_EQ(std::count(junk.error.begin(), junk.error.end(), '\n'), 1);
}

TEST_F(AscCommand, KeepsAnOldFileWhereANewOneDoesNotFit) {
    put("box.obj", box_obj);
    ASSERT_EQ(call("convert box.obj -o box.asc").status, 0);
    put("old.asc", "old");
    put("old.png", "old");
    std::pair<char const*, char const*> const cases[] = {
        {"convert box.obj -o old.asc", "old.asc"},
        {"join box.asc -o old.asc", "old.asc"},
        {"sheet box.asc -o old.png", "old.png"},
        {"preview box.asc -o old.png", "old.png"},
        {"preview box.asc --camera 0,0,5 -o old.png", "old.png"},
    };
    for (auto const& [arguments, file] : cases) {
        Outcome const run = call(arguments, "ulimit -f 1; ");
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.error, "asc: cannot write " + std::string(file) + ": File too large\n");
        EXPECT_EQ(get(file), "old");
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path("")), {}), 4);
}

TEST_F(AscCommand, HoldsCoordinatesToTheirRange) {
    std::string const range = "a coordinate is not a number from -1000000 to 1000000\n";
    for (char const* const number : {"nan", "inf", "-inf", "1e999", "1e30", "-1000001"}) {
        put("a.obj", "v " + std::string(number) + " 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        Outcome const run = call("convert a.obj -o a.asc");
        EXPECT_EQ(run.status, 1) << number;
        EXPECT_EQ(run.error, "asc: a.obj: " + range);
    }
    put("a.obj", "v 1000000 0 0\nv -1000000 0 0\nv 0 1 0\nf 1 2 3\n");
    EXPECT_EQ(call("convert a.obj -o a.asc").status, 0);
    EXPECT_EQ(call("check a.asc").status, 0);
    std::string text = get("a.asc");
    put("b.asc", text.replace(text.find("1000000"), 7, "1000001"));
    Outcome const run = call("check b.asc");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "b.asc:4: " + range);
    EXPECT_EQ(call("preview a.asc --camera 0,0,1e7").error,
              "asc: --camera: '0,0,1e7' is not a number from -1000000 to 1000000, or three between commas\n");
}

TEST_F(AscCommand, OutlivesTheModelReader) {
    std::string nodes;
    for (int i = 1; i <= 200000; ++i) nodes += "{\"children\":[" + std::to_string(i) + "]},";
    put("deep.gltf", "{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":[0]}],\"nodes\":[" + nodes +
                         "{\"mesh\":0}],\"meshes\":[{\"primitives\":[{\"attributes\":{}}]}]}");
    put("nested.gltf", "{\"asset\":" + std::string(300000, '['));
    put("cut.off", "OFF\n4 4 0\n1 1 1\n1 -1 -1\n-1 1 -1\n-1 -1 1\n3 0 1 2\n3 0 2");
    put("counts.off", "OFF\n2000000000 2000000000 0\n1 1 1\n");
    put("out.asc", "old");
    for (char const* const file : {"deep.gltf", "nested.gltf", "cut.off", "counts.off"}) {
        Outcome const run = call("convert " + std::string(file) + " -o out.asc");
        EXPECT_EQ(run.status, 1) << file;
        EXPECT_TRUE(run.error.starts_with("asc: " + std::string(file) + ": ")) << run.error;
        EXPECT_EQ(std::count(run.error.begin(), run.error.end(), '\n'), 1) << run.error;
        EXPECT_EQ(get("out.asc"), "old");
    }
}

TEST_F(AscCommand, OutlivesTheMesher) {
    put("crossed.obj",
        "v 0 4 0\nv 5 0 0\nv 1 1 0\nv 0 0 0\nv 6 5 0\nf 3 2 1\nf 3 4 5\nf 3 5 2\n"); // faces across each other
    put("out.asc", "old");
    Outcome const run = call("convert crossed.obj --refine 0.5 -o out.asc");
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.error.starts_with("asc: crossed.obj: object 'crossed' cannot be refined: it "));
    EXPECT_EQ(std::count(run.error.begin(), run.error.end(), '\n'), 1) << run.error;
    EXPECT_EQ(get("out.asc"), "old");
}

TEST_F(AscCommand, DoesNotWaitForAMaterial) {
    ASSERT_EQ(mkfifo(folder.Path("pipe.mtl").c_str(), 0666), 0);
    put("a.obj", "mtllib pipe.mtl\nusemtl m\n" + std::string(square_obj));
    auto const start = std::chrono::steady_clock::now();
    Outcome const run = call("convert a.obj -o a.asc");
    EXPECT_EQ(run.status, 0) << run.error;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

TEST_F(AscCommand, HasALargestFileAndAFinestRefinement) {
    put("large.stl", "");
    std::filesystem::resize_file(folder.Path("large.stl"), std::uintmax_t{4} << 30); // all of it a hole
    put("large.asc", "");
    std::filesystem::resize_file(folder.Path("large.asc"), std::uintmax_t{4} << 30);
    put("box.obj", box_obj);
    std::pair<char const*, char const*> const cases[] = {
        {"convert large.stl -o a.asc", "large.stl: it has more than 256 MiB"},
        {"check large.asc", "cannot read large.asc"},
        {"convert box.obj --refine 0.0001 -o a.asc",
         "box.obj: --refine would cut object 'box' into more than 50000 triangles"},
        {"convert box.obj --refine 0.02 -o a.asc",
         "box.obj: --refine would cut object 'box' into more than 50000 triangles"},
    };
    for (auto const& [arguments, line] : cases) {
        Outcome const run = call(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.error, "asc: " + std::string(line) + "\n");
    }
}

TEST_F(AscCommand, ReplacesWhatItReadsOnlyWhenAsked) {
    put("a.obj", square_obj);
    ASSERT_EQ(call("convert a.obj -o a.asc").status, 0);
    put("a.png", get("a.asc"));
    std::filesystem::create_symlink("a.asc", folder.Path("link.asc"));
    std::filesystem::create_hard_link(folder.Path("a.obj"), folder.Path("other.obj"));
    std::pair<char const*, char const*> const cases[] = {
        {"convert a.obj -o a.obj", "a.obj"},         {"convert N=a.obj -o ./a.obj", "./a.obj"},
        {"convert a.obj -o other.obj", "other.obj"}, {"join a.asc -o a.asc", "a.asc"},
        {"join a.asc -o link.asc", "link.asc"},      {"preview a.png", "a.png"},
        {"preview a.png --camera 0,0,3", "a.png"},   {"sheet a.asc a.png -o a.png", "a.png"},
    };
    std::string const before = get("a.obj") + get("a.asc") + get("a.png");
    for (auto const& [arguments, out] : cases) {
        Outcome const run = call(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.error, "asc: " + std::string(out) + " is read, and would be replaced; --force does it\n");
    }
    EXPECT_EQ(get("a.obj") + get("a.asc") + get("a.png"), before);
    for (char const* const arguments : {"join N=a.asc -o a.asc", "convert M=a.obj -o a.obj", "preview a.png"}) {
        EXPECT_EQ(call(arguments + std::string(" --force")).error, "");
    }
    EXPECT_TRUE(get("a.asc").starts_with("Named object: \"N\""));
    EXPECT_TRUE(get("a.obj").starts_with("Named object: \"M\""));
}

TEST_F(AscCommand, TakesPathsWithOddCharacters) {
    std::filesystem::create_directory(folder.Path("x=y"));
    std::filesystem::create_directory(folder.Path("a.asc.d"));
    put("x=y/a=b.obj", square_obj);
    EXPECT_EQ(call("convert x=y/a=b.obj -o x=y/a=b.asc").error, "");
    EXPECT_TRUE(get("x=y/a=b.asc").starts_with("Named object: \"a=b\""));
    EXPECT_EQ(call("convert N=x=y/a=b.obj -o a.asc").error, "");
    EXPECT_TRUE(get("a.asc").starts_with("Named object: \"N\""));
    EXPECT_EQ(call("join M=x=y/a=b.asc x=y/a=b.asc -o b.asc").error, "");
    EXPECT_TRUE(get("b.asc").starts_with("Named object: \"M\""));
    EXPECT_EQ(call("sheet x=y/a=b.asc -o x=y/s.png").error, "");
    EXPECT_EQ(call("preview x=y/a=b.asc").error, "");
    put("a.asc.d/foo", get("a.asc"));
    EXPECT_EQ(call("preview a.asc.d/foo").error, "");
    for (char const* const file : {"x=y/s.png", "x=y/a=b.png", "a.asc.d/foo.png"}) EXPECT_NE(get(file), "") << file;
}

TEST_F(AscCommand, WritesNamesOutThatWouldSteerATerminal) {
    put("a.off", tetrahedron_off);
    ASSERT_EQ(call("convert \"$(printf 'a\\033[2J')\"=a.off -o a.asc").status, 0);
    EXPECT_EQ(call("check a.asc").output.substr(0, 21), "a.asc: a\\x1b[2J: 4 ve");
    EXPECT_EQ(call("check \"$(printf 'b\\033[2J')\"").error, "asc: cannot read b\\x1b[2J\n");
    EXPECT_EQ(call("preview a.asc --object \"$(printf 'b\\033')\"").error, "asc: a.asc holds no object 'b\\x1b'\n");
}

TEST_F(AscCommand, RefusesATooLargeSheetBeforeItDraws) {
    put("one.off", tetrahedron_off);
    ASSERT_EQ(call("convert one.off -o one.asc").status, 0);
    std::string const object = get("one.asc");
    std::string all;
    for (int i = 0; i < 5000; ++i) {
        std::string const name = "o" + std::to_string(i);
        all += (i > 0 ? "\r\n" : "") + std::string("Named object: \"") + name + object.substr(object.find("\"\r\n"));
    }
    put("all.asc", all);
    Outcome const run = call("sheet all.asc -o s.png");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.error,
              "asc: the sheet would have 1620x180000 pixels; no side may have more than 65535, nor all of it "
              "more than 67108864\n");
}

TEST_F(AscCommand, FailsWhereItsOutputDoes) {
    put("box.obj", box_obj);
    ASSERT_EQ(call("convert box.obj -o box.asc").status, 0);
    for (char const* const arguments : {"--help", "--version", "check box.asc"}) {
        Outcome const run = call(arguments + std::string(" > /dev/full"));
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.error.starts_with("asc: cannot write to standard output"));
    }
}

TEST_F(AscCommand, PrintsItsHelpAndItsVersion) {
    Outcome const help = call("--help");
    EXPECT_EQ(help.status, 0);
    for (char const* const word : {"convert", "--weld DISTANCE", "join", "check", "--shatter", "preview",
                                   "--camera X,Y,Z", "--no-lines ", "sheet", "--panel PIXELS"}) {
        EXPECT_NE(help.output.find(word), std::string::npos) << word;
    }
    EXPECT_EQ(help.error, "");
    EXPECT_EQ(call("convert --help").status, 0);
    Outcome const bare = call("");
    EXPECT_EQ(bare.status, 1);
    EXPECT_EQ(bare.output, "");
    EXPECT_EQ(bare.error, help.output) << "without a command, the help";
    EXPECT_EQ(call("--version").output, "asc " HARDSILENCE_VERSION "\n");
    EXPECT_EQ(call("--version").status, 0);
}

} // namespace
