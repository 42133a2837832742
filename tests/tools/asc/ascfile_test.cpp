// SPDX-License-Identifier: MIT
// The mesh tool's reader and writer of mesh files.

#include "tests/support/command.h"
#include "tests/support/temp.h"
#include "tools/asc/ascfile.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

namespace {

asc::Object triangle(std::string const& name) {
    return {name, {{0, 0, 0}, {1.5, 0, 0}, {0, -0.25, 2}}, {{{0, 1, 2}, {1, 1, 1}}}};
}

std::string const triangle_text = "Named object: \"flag\"\r\n"
                                  "Tri-mesh, Vertices: 3     Faces: 1\r\n"
                                  "Vertex list:\r\n"
                                  "Vertex 0:  X:0 Y:0 Z:0\r\n"
                                  "Vertex 1:  X:1.5 Y:0 Z:0\r\n"
                                  "Vertex 2:  X:0 Y:-0.25 Z:2\r\n"
                                  "Face list:\r\n"
                                  "Face 0:    A:0 B:1 C:2 AB:1 BC:1 CA:1\r\n";

std::string replaced(std::string text, std::string const& what, std::string const& by) {
    auto const at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), by);
}

TEST(AscWrite, LaysAnObjectOut) { EXPECT_EQ(asc::write({triangle("flag")}), triangle_text); }

TEST(AscWrite, PutsOneBlankLineBetweenObjectsAndNoneAtTheEnd) {
    EXPECT_EQ(asc::write({triangle("flag"), triangle("flag")}), triangle_text + "\r\n" + triangle_text);
}

TEST(AscWrite, RoundsToSixDecimalsAndWritesNoNegativeZero) {
    asc::Object object = triangle("flag");
    object.vertices[1] = {1.0 / 3.0, -0.0000001, -1e-9};
    EXPECT_EQ(asc::write({object}), replaced(triangle_text, "X:1.5 Y:0 Z:0", "X:0.333333 Y:0 Z:0"));
}

TEST(AscWrite, DoesNotDependOnTheLocale) {
    support::TempFolder const folder;
    ASSERT_EQ(support::run({"localedef", "-i", "de_DE", "-f", "UTF-8", folder.Path("de_DE.UTF-8")}).status, 0);
    setenv("LOCPATH", folder.Path("").c_str(), 1);
    std::string const before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(asc::write({triangle("flag")}), triangle_text);
    EXPECT_TRUE(asc::parse(triangle_text).faults.empty());
    std::setlocale(LC_ALL, before.c_str());
    unsetenv("LOCPATH");
}

TEST(AscParse, ReadsWhatIsWritten) {
    asc::ReadFile const file = asc::parse(asc::write({triangle("one"), triangle("two")}));
    EXPECT_TRUE(file.faults.empty());
    ASSERT_EQ(file.objects.size(), 2U);
    EXPECT_EQ(file.objects[1].object.name, "two");
    EXPECT_EQ(file.objects[1].object.vertices, triangle("two").vertices);
    EXPECT_EQ(file.objects[1].object.faces[0].v, (std::array{0, 1, 2}));
    EXPECT_EQ(file.objects[1].line, 10);
    EXPECT_EQ(file.objects[1].face_lines, std::vector{17});
}

TEST(AscParse, NamesTheLineOfEveryDepartureFromTheLayout) {
    struct {
        std::string text;
        int line;
        std::string fault;
    } const cases[] = {
        {"", 0, "the file is empty"},
        {"\r\n" + triangle_text, 1, "expected a line like: Named object: \"name\""},
        {replaced(triangle_text, "\"flag\"", "flag"), 1, "expected a line like: Named object: \"name\""},
        {replaced(triangle_text, "Vertices: 3", "Vertices: x"), 2,
         "expected a line like: Tri-mesh, Vertices: 8     Faces: 12"},
        {replaced(triangle_text, "Faces: 1", "Faces: 0"), 2,
         "expected a line like: Tri-mesh, Vertices: 8     Faces: 12"},
        {replaced(triangle_text, "Vertices: 3", "Vertices: 2"), 6,
         "expected 'Face list:'; the header's counts may be wrong"},
        {replaced(triangle_text, "Vertices: 3", "Vertices: 4"), 7,
         "expected vertex 3 with X, Y and Z; the header's counts may be wrong"},
        {replaced(triangle_text, "Faces: 1", "Faces: 2"), 8, "the file ends where face 1 should follow"},
        {replaced(triangle_text, "Vertex 1:", "Vertex 7:"), 5,
         "expected vertex 1 with X, Y and Z; the header's counts may be wrong"},
        {replaced(triangle_text, "X:1.5", "X:1,5"), 5,
         "expected vertex 1 with X, Y and Z; the header's counts may be wrong"},
        {replaced(triangle_text, "X:1.5", "X:nan"), 5, "a coordinate is not a number from -1000000 to 1000000"},
        {replaced(triangle_text, "C:2", "C:3"), 8, "vertex index 3 is out of range: there are 3"},
        {replaced(triangle_text, "C:2", "C:-1"), 8, "vertex index -1 is out of range: there are 3"},
        {replaced(triangle_text, "CA:1", "CA:2"), 8, "edge flag 2 is neither 0 nor 1"},
        {replaced(triangle_text, "Face list:\r\n", "Face list:\n"), 7,
         "the line does not end in carriage return and line feed"},
        {triangle_text.substr(0, triangle_text.size() - 2), 8, "the last line has no line end"},
        {triangle_text + "\r\n", 9, "the file ends with a blank line"},
        {triangle_text + triangle_text, 9,
         "expected one blank line after the last face; the header's counts may be wrong"},
        {triangle_text + "\r\n\r\n" + triangle_text, 10, "expected a line like: Named object: \"name\""},
        {triangle_text + "\r\n" + triangle_text, 10, "the name 'flag' stands at line 1 too"},
    };
    for (auto const& [text, line, fault] : cases) {
        SCOPED_TRACE(fault);
        asc::ReadFile const file = asc::parse(text);
        ASSERT_FALSE(file.faults.empty());
        EXPECT_EQ(file.faults.front().line, line);
        EXPECT_EQ(file.faults.front().text, fault);
    }
}

TEST(AscParse, GoesOnWithTheNextObjectAfterAFault) {
    std::string const text = replaced(triangle_text, "C:2", "C:9") + "\r\n" + replaced(triangle_text, "flag", "good");
    asc::ReadFile const file = asc::parse(text);
    EXPECT_EQ(file.faults.size(), 1U);
    ASSERT_EQ(file.objects.size(), 1U);
    EXPECT_EQ(file.objects[0].object.name, "good");
}

TEST(AscParse, EndsAtItsLimits) {
    asc::ReadFile const feeds = asc::parse(std::string(100000, '\n'));
    EXPECT_EQ(feeds.faults.size(), 1001U);
    EXPECT_EQ(feeds.faults.back().text, "too many faults; the rest is not read");
    std::vector<asc::Object> objects;
    for (int i = 0; i < 10001; ++i) objects.push_back(triangle("o" + std::to_string(i)));
    asc::ReadFile const many = asc::parse(asc::write(objects));
    EXPECT_EQ(many.objects.size(), 10000U);
    ASSERT_EQ(many.faults.size(), 1U);
    EXPECT_EQ(many.faults[0].text, "more than 10000 objects");
    objects.pop_back();
    EXPECT_TRUE(asc::parse(asc::write(objects)).faults.empty());
}

TEST(AscParse, SurvivesEveryCutAndEveryBrokenByteOfAFile) {
    std::string const whole = asc::write({triangle("one"), triangle("two")});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        if (at > 0 && at != triangle_text.size() - 1) {
            EXPECT_FALSE(asc::parse(whole.substr(0, at)).faults.empty()) << at;
        }
        for (char const c : {'\0', '\n', '-', '9', '\xFF'}) {
            std::string broken = whole;
            broken[at] = c;
            for (auto const& read : asc::parse(broken).objects) {
                for (asc::Face const& face : read.object.faces) {
                    for (int v : face.v) EXPECT_LT(static_cast<std::size_t>(v), read.object.vertices.size());
                }
            }
        }
    }
}

} // namespace
