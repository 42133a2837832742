// SPDX-License-Identifier: MIT
#include "kore/ascfile.h"
#include "kore/asclines.h"
#include "tests/support/reference_asc.h"
#include "tests/support/temp.h"

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr char const* name_line = "Named object: \"boat\"\r\n";

std::uint32_t bits_of(float f) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &f, sizeof bits);
    return bits;
}

std::array<std::uint32_t, 3> bits_of(float const (&v)[3]) { return {bits_of(v[0]), bits_of(v[1]), bits_of(v[2])}; }

/// Reads a text with both readers and compares everything that they find.
void expect_same(std::string const& text) {
    SCOPED_TRACE(text.substr(0, 400));
    static support::TempFolder const folder;
    reference::File const expected = reference::read_asc(text);
    kore::AscFile file;
    ASSERT_TRUE(file.Open(folder.Write("mesh.asc", text)));
    for (reference::Mesh const& mesh : expected.meshes) {
        ASSERT_EQ(file.Next(), kore::AscFile::Result::Object) << file.GetFault();
        EXPECT_EQ(file.GetName(), mesh.name);
        ASSERT_EQ(static_cast<std::size_t>(file.GetVertexCount()), mesh.vertices.size());
        ASSERT_EQ(static_cast<std::size_t>(file.GetFaceCount()), mesh.faces.size());
        for (std::size_t v = 0; v < mesh.vertices.size(); ++v) {
            for (std::size_t k = 0; k < 3; ++k) {
                ASSERT_EQ(bits_of(file.GetVertices()[v][k]), bits_of(mesh.vertices[v][k]))
                    << "vertex " << v << ' ' << k;
            }
        }
        for (std::size_t f = 0; f < mesh.faces.size(); ++f) {
            for (std::size_t k = 0; k < 3; ++k) {
                ASSERT_EQ(file.GetFaces()[f][k], mesh.faces[f][k]) << "face " << f << ' ' << k;
                ASSERT_EQ(file.GetEdges()[f][k], mesh.edges[f][k]) << "edges of face " << f << ' ' << k;
            }
        }
    }
    if (expected.fault.empty()) {
        EXPECT_EQ(file.Next(), kore::AscFile::Result::End) << file.GetFault();
    } else {
        EXPECT_EQ(file.Next(), kore::AscFile::Result::Fault);
        EXPECT_EQ(file.GetFault(), expected.fault);
    }
}

std::string counts(int vertices, int faces) {
    return "Tri-mesh, Vertices: " + std::to_string(vertices) + "     Faces: " + std::to_string(faces) + "\r\n";
}

/// An object of these vertex and face lines.
std::string object_of(std::vector<std::string> const& vertices, std::vector<std::string> const& faces) {
    std::string text = name_line + counts(static_cast<int>(vertices.size()), static_cast<int>(faces.size()));
    text += "Vertex list:\r\n";
    for (std::string const& line : vertices) text += line + "\r\n";
    text += "Face list:\r\n";
    for (std::string const& line : faces) text += line + "\r\n";
    return text;
}

// Each is read after a plain line, whose values it repeats as far as it cannot be read.
constexpr char const* vertex_lines[] = {
    "Vertex 0:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex 0: X:1.5 Y:-2.0 Z:0.25",
    "Vertex 0:X:1.5Y:-2.0Z:0.25",
    "Vertex 0:\tX:\t1.5\tY:  -2.0  Z:\t\t0.25",
    "Vertex0:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex   0:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex 0 :  X:1.5     Y:-2.0     Z:0.25",
    "Vertex +7:  X:+1.5     Y:+2.0     Z:+.25",
    "Vertex -7:  X:-1.5     Y:--2.0     Z:0.25",
    "Vertex 7.5:  X:1.5     Y:-2.0     Z:0.25",
    " Vertex 0:  X:1.5     Y:-2.0     Z:0.25",
    "A Vertex 0:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex 0:  X:.5     Y:-.5     Z:5.",
    "Vertex 0:  X:1e3     Y:-2.5E-2     Z:1e+2",
    "Vertex 0:  X:1e     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1e+     Y:-2.0     Z:0.25",
    "Vertex 0:  X:0x1.8p3     Y:0x10     Z:-0X.8P1",
    "Vertex 0:  X:0x     Y:-2.0     Z:0.25",
    "Vertex 0:  X:inf     Y:-inf     Z:infinity",
    "Vertex 0:  X:INF     Y:Infinity     Z:infi",
    "Vertex 0:  X:nan     Y:NAN     Z:nan(12)",
    "Vertex 0:  X:1e39     Y:-1e39     Z:1e-50",
    "Vertex 0:  X:3.4028235e38     Y:1.4e-45     Z:1.17549435e-38",
    "Vertex 0:  X:16777217     Y:0.1     Z:33554435",
    "Vertex 0:  X:0.1000000014901161193847656250000001     Y:123456789012345678901234567890     Z:-0",
    "Vertex 0:  X:-0.0     Y:-0     Z:00012.50",
    "Vertex 0:  X:1,5     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1.5.5     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1.5     Y:-2.0     Z:0.25 and more",
    "Vertex 0:  X:1.5     Y:-2.0     Z:0.25garbage",
    "Vertex 0:  X:1.5     Y:-2.0     Z:",
    "Vertex 0:  X:1.5     Y:-2.0",
    "Vertex 0:  X:1.5     Y:",
    "Vertex 0:  X:1.5",
    "Vertex 0:  X:",
    "Vertex 0:",
    "Vertex 0",
    "Vertex",
    "Vertex 0:  Y:-2.0     X:1.5     Z:0.25",
    "Vertex 0:  x:1.5     y:-2.0     z:0.25",
    "Vertex 0:  X :1.5     Y:-2.0     Z:0.25",
    "Vertex 0:  X: 1.5     Y: -2.0     Z: 0.25   ",
    "Vertex 0:  X:- 1.5     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1.5\v Y:-2.0\f Z:0.25",
    "Vertex 99999999999:  X:1.5     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1.5     Y:-2.0     Z:0.25\r",
    "Vertex 0:  X:1.5\rY:-2.0\rZ:0.25",
    "Vertexes: X:1 Y:2 Z:3",
    "Vertex 0:  X:1.5f     Y:-2.0     Z:0.25",
    "Vertex 0:  X:1e-400     Y:0e99999     Z:1e99999",
};

constexpr char const* face_lines[] = {
    "Face 0:    A:0 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A:0 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0:A:0B:1C:2AB:1BC:1CA:0",
    "Face\t0:\tA:\t0\tB:  1 C:2   AB:1 BC:1 CA:0  ",
    "Face0: A:0 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A:+1 B:+02 C:002 AB:-1 BC:7 CA:-0",
    "Face 0: A:0x1 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A:1.5 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A:0 B:1 C:2 AB:1 BC:1",
    "Face 0: A:0 B:1 C:2 AB:1 BC:",
    "Face 0: A:0 B:1 C:2",
    "Face 0: A:2 B:",
    "Face 0:",
    "Face",
    "Face 0: B:1 A:0 C:2 AB:1 BC:1 CA:0",
    "Face 0: a:0 b:1 c:2 ab:1 bc:1 ca:0",
    " Face 0: A:1 B:1 C:1 AB:0 BC:0 CA:0",
    "The Face 0: A:1 B:1 C:1 AB:0 BC:0 CA:0",
    "Faces: none",
    "Face 0: A:0 B:1 C:2 AB:1 BC:1 CA:0 Material:\"steel\"",
    "Face 0: A:0 B:1 C:2 AB:1 BC:1 CA:0x",
    "Face 0: A:99999 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 1234567890: A:0 B:1 C:2 AB:123456789 BC:1234567890 CA:2147483647",
    "Face -1: A:0 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A :0 B:1 C:2 AB:1 BC:1 CA:0",
    "Face 0: A:0 B:1 C:2 AB:1 BC:1 CA:0\r",
    "Face 0: A:0 B:1 C:2 AB:000000000001 BC:1 CA:1",
};

constexpr char const* plain_vertex = "Vertex 0:  X:11     Y:12     Z:13";
constexpr char const* plain_face = "Face 0:    A:1 B:2 C:3 AB:1 BC:0 CA:1";

TEST(AscFile, ReadsVertexLinesAsThePatternDoes) {
    for (char const* line : vertex_lines) expect_same(object_of({plain_vertex, line}, {plain_face}));
}

TEST(AscFile, ReadsFaceLinesAsThePatternDoes) {
    for (char const* line : face_lines) expect_same(object_of({plain_vertex}, {plain_face, line}));
}

TEST(AscFile, ReadsHeaderLinesAsThePatternDoes) {
    constexpr char const* lines[] = {
        "Tri-mesh, Vertices: 1     Faces: 1",
        "Tri-mesh, Vertices:1Faces:1",
        "Tri-mesh, Vertices: \t 1 \t Faces: \t 1 and more",
        "Tri-mesh,Vertices: 1     Faces: 1",
        "Tri-mesh, Vertices: +1     Faces: +1",
        "Tri-mesh, Vertices: 1",
        "Tri-mesh, Vertices: 0     Faces: 1",
        "Tri-mesh, Vertices: 1     Faces: 0",
        "Tri-mesh, Vertices: -1     Faces: 1",
        "Tri-mesh, Vertices: x     Faces: 1",
        "  Tri-mesh, Vertices: 1     Faces: 1",
        "Tri-mesh, Vertices",
        "Tri-mesh, Vertices: 1.5     Faces: 1",
        "Tri-mesh, vertices: 1     Faces: 1",
        "Named object: \"x\" Tri-mesh, Vertices: 1     Faces: 1",
    };
    for (char const* line : lines) {
        expect_same(std::string(name_line) + line + "\r\nVertex list:\r\n" + plain_vertex + "\r\nFace list:\r\n" +
                    plain_face + "\r\n");
    }
}

TEST(AscFile, CutsNamesOutOfTheirLines) {
    constexpr char const* lines[] = {
        "Named object: \"boat\"\r\n",
        "Named object: \"boat\"\n",
        "Named object: \"A\"\r\n",
        "Named object: \"A\"\n",
        "Named object: \"\"\r\n",
        "Named object:\r\n",
        "Named object:\n",
        "Named object: \"\n",
        "  Named object: \"b\"\r\n",
        "Named object: b c d\r\n",
        "Named object: \"a b\" \r\n",
        "Named object: \"ab",
    };
    for (char const* line : lines) {
        expect_same(line + counts(1, 1) + "Vertex list:\r\n" + plain_vertex + "\r\nFace list:\r\n" + plain_face);
    }
}

TEST(AscFile, FindsTheEndsOfObjectsAndFilesAsLineReadsDo) {
    std::string const object = object_of({plain_vertex}, {plain_face});
    std::string const nameless = object.substr(std::strlen(name_line));
    std::string lf_only = object;
    std::erase(lf_only, '\r');
    std::string const texts[] = {
        "",
        "\n",
        "\r\n",
        "x",
        "text without a mesh\r\n",
        object,
        object.substr(0, object.size() - 2), // the last line is not terminated
        object.substr(0, object.size() - 1),
        object + "\r\n",
        object + "\r\n\r\n",
        object + "\r\n\r\ntext\r\n",
        object + "\r\ntext\r\n",
        object + "\r\ntext",
        object + "\n",
        object + " \r\n" + object, // a blank and a carriage return make a line
        object + "x\n",            // and so do two other characters; one and a feed do not
        object + "\r\n" + object,
        object + "\r\n" + nameless,
        object + "\r\n" + object + "\r\n\r\n" + object,
        object + object, // no blank line between: a second face list
        "Ambient light color: Red=0.3\r\n" + object,
        "Ambient light color: Red=0.3\r\n\r\n" + object,
        lf_only,
        lf_only + "\n" + lf_only,
        name_line + counts(1, 1) + "\r\nVertex list:\r\n" + plain_vertex + "\r\nFace list:\r\n" + plain_face + "\r\n",
        name_line + counts(1, 1) + plain_vertex + "\r\n\r\nFace list:\r\n" + plain_face + "\r\n",
        name_line + counts(1, 1) + plain_vertex + "\r\nFace list:\r\n\r\n" + plain_face + "\r\n",
        name_line + counts(1, 1) + plain_vertex + "\r\n",
        name_line + counts(1, 1),
        name_line,
        name_line + counts(2, 1) + plain_vertex + " Face list:\r\n" + plain_face + "\r\n",
        name_line + counts(1, 1) + plain_vertex + " Face list:\r\n" + plain_face + "\r\n",
        object + "Smoothing: 1\r\nMaterial:\"steel\"\r\n",
        name_line + counts(1, 1) + "Mapped\r\nVertex list:\r\nnoise\r\n" + plain_vertex +
            "\r\nnoise\r\nFace list:\r\n" + plain_face + "\r\n",
    };
    for (std::string const& text : texts) expect_same(text);
}

/// Lines as a careless writer would make them.
class OddLines {
public:
    std::string Vertex() {
        std::string line = "Vertex" + Gap(1) + Int() + ":";
        for (char const* axis : {"X:", "Y:", "Z:"}) {
            if (Chance(40)) return line;
            line += Gap(1) + axis + Gap(0) + Float();
        }
        return Chance(10) ? line + Gap(2) + "tail" : line;
    }
    std::string Face() {
        std::string line = "Face" + Gap(1) + Int() + ":";
        for (char const* field : {"A:", "B:", "C:"}) line += Gap(1) + field + Gap(0) + std::to_string(engine() % 100);
        for (char const* field : {"AB:", "BC:", "CA:"}) {
            if (Chance(40)) return line;
            line += Gap(1) + field + Gap(0) + (Chance(20) ? Int() : std::to_string(engine() % 2));
        }
        return line;
    }

private:
    bool Chance(unsigned int one_in) { return engine() % one_in == 0; }
    std::string Gap(unsigned int usual) {
        std::string gap;
        for (unsigned int n = usual + (Chance(3) ? engine() % 4 : 0); n > 0; --n) gap += Chance(5) ? '\t' : ' ';
        return gap;
    }
    std::string Int() {
        std::string const sign = Chance(10) ? "-" : Chance(10) ? "+" : "";
        return sign + std::to_string(engine() % (Chance(5) ? 2000000000u : 100u));
    }
    std::string Digits(unsigned int most) {
        std::string digits;
        for (unsigned int n = engine() % (most + 1); n > 0; --n) digits += static_cast<char>('0' + engine() % 10);
        return digits;
    }
    std::string Float() {
        constexpr char const* words[] = {"inf", "-nan", "NaN(x)", "+Infinity", ".",
                                         "-",   "e5",   "0x1p-3", "0x.4",      "-0x2"};
        if (Chance(15)) return words[engine() % std::size(words)];
        std::string text = Chance(3) ? "-" : Chance(10) ? "+" : "";
        text += Digits(9);
        if (Chance(2)) text += "." + Digits(12);
        if (Chance(5)) text += (Chance(2) ? "e" : "E") + std::string(Chance(2) ? "-" : "") + Digits(2);
        return text;
    }

    std::mt19937 engine{132};
};

TEST(AscFile, ReadsTwentyThousandOddLinesAsThePatternsDo) {
    OddLines odd;
    for (int file = 0; file < 20; ++file) {
        std::vector<std::string> vertices;
        std::vector<std::string> faces;
        for (int i = 0; i < 500; ++i) {
            vertices.push_back(odd.Vertex());
            faces.push_back(odd.Face());
        }
        expect_same(object_of(vertices, faces));
        if (HasFatalFailure()) return;
    }
}

TEST(AscFile, ReadsRandomFloatsToTheLastBit) {
    std::mt19937 engine(384);
    std::vector<std::string> vertices;
    for (int i = 0; i < 5000; ++i) {
        float f[3];
        for (float& x : f) {
            std::uint32_t const bits = engine();
            std::memcpy(&x, &bits, sizeof x);
        }
        char line[160];
        char const* const format = i % 2 ? "Vertex %d:  X:%.9g     Y:%.5f     Z:%.7g" : "Vertex %d:  X:%f Y:%e Z:%.12g";
        std::snprintf(line, sizeof line, format, i, static_cast<double>(f[0]), static_cast<double>(f[1]),
                      static_cast<double>(f[2]));
        vertices.push_back(line);
    }
    expect_same(object_of(vertices, {plain_face}));
}

TEST(AscLines, LeaveEveryLineThatIsNotPlainToThePattern) {
    // What they take, they take as the pattern would: a check of the fast path by itself.
    int taken = 0;
    for (char const* line : vertex_lines) {
        float fast[3] = {11, 12, 13};
        float slow[3] = {11, 12, 13};
        if (!kore::parse_plain_vertex(line, fast)) {
            EXPECT_EQ(bits_of(fast), bits_of(slow)) << line; // left alone
            continue;
        }
        ++taken;
        int index = 0;
        EXPECT_EQ(std::sscanf(line, "Vertex %d: X:%f Y:%f Z:%f", &index, &slow[0], &slow[1], &slow[2]), 4) << line;
        EXPECT_EQ(bits_of(fast), bits_of(slow)) << line;
    }
    EXPECT_GE(taken, 3); // the exporters' own layout among them
    for (char const* line : face_lines) {
        int fast[6] = {1, 2, 3, 4, 5, 6};
        int slow[6] = {1, 2, 3, 4, 5, 6};
        if (kore::parse_plain_face(line, fast)) {
            int index = 0;
            EXPECT_EQ(std::sscanf(line, "Face %d: A:%d B:%d C:%d AB:%d BC:%d CA:%d", &index, &slow[0], &slow[1],
                                  &slow[2], &slow[3], &slow[4], &slow[5]),
                      7)
                << line;
        }
        EXPECT_EQ(std::memcmp(fast, slow, sizeof fast), 0) << line;
    }
}

TEST(AscFile, RoundsNumbersHalfwayBetweenTwoFloatsAsThePatternsDo) {
    // 2^24 + 1 and the like: the nearest double lies just between two floats. The last two lie so near to the middle
    // that a double on the way to the float would be the middle itself.
    // clang-format off
    constexpr char const* halves[] = {
        "16777217", "16777219", "-16777217", "8388608.5", "8388609.5",
        "4194304.25", "4194304.75", "1048576.0625", "1048576.06249", "1048576.06251",
        "0.50000002", "0.500000029802", "16777216.99999", "16777217.00001", "99999999.9999",
        "123456789", "12345678.12345", "-0", "-0.0", "00000001.5",
        "1048576.06250000000000001", "1048576.18749999999999999",
    };
    // clang-format on
    std::vector<std::string> vertices;
    for (char const* half : halves) {
        vertices.push_back(std::string("Vertex 0:  X:") + half + "     Y:" + half + " Z:" + half);
    }
    expect_same(object_of(vertices, {plain_face}));
}

TEST(AscFile, HasAtTheOriginWhatNoObjectOfItsFileHas) {
    support::TempFolder const folder;
    std::string const face = "Face 0:    A:0 B:2 C:99999 AB:1 BC:1 CA:1";
    std::vector<std::string> const three(3, "Vertex 0:  X:1.5     Y:-2.0     Z:0.25");
    std::string const path =
        folder.Write("mesh.asc", object_of(three, {face}) + "\r\n" + object_of({three[0]}, {face}));
    // Memory that the reader is given next; the first time malloc learns to keep such pieces.
    for (int i = 0; i < 2; ++i) std::vector<char> const dirty(8 << 20, '*');
    kore::AscFile file;
    ASSERT_TRUE(file.Open(path));
    for (int object = 0; object < 2; ++object) {
        ASSERT_EQ(file.Next(), kore::AscFile::Result::Object) << file.GetFault();
        EXPECT_EQ(file.GetVertices()[2][1], -2.0f) << "the first object's, in both";
        for (int v = 3; v < kore::AscFile::max_vertices; ++v) {
            for (int k = 0; k < 3; ++k) ASSERT_EQ(bits_of(file.GetVertices()[v][k]), 0u) << v;
        }
    }
}

TEST(AscFile, TakesNoFileBeyondItsLimitsAndNoMoreObjects) {
    support::TempFolder const folder;
    kore::AscFile file;
    std::string const path = folder.Write("large.asc", "");
    std::filesystem::resize_file(path, kore::max_mesh_file + 1); // all of it a hole
    EXPECT_FALSE(file.Open(path));
    std::filesystem::resize_file(path, kore::max_mesh_file);
    EXPECT_TRUE(file.Open(path));
    std::string const one = name_line + counts(1, 1) +
                            "Vertex list:\r\nVertex 0: X:1 Y:2 Z:3\r\nFace list:\r\n"
                            "Face 0: A:0 B:0 C:0 AB:1 BC:1 CA:1\r\n";
    for (int const more : {0, 1}) {
        std::string all = one;
        for (int i = 1; i < kore::max_mesh_objects + more; ++i) all += "\r\n" + one;
        ASSERT_TRUE(file.Open(folder.Write("many.asc", all)));
        for (int i = 0; i < kore::max_mesh_objects; ++i) ASSERT_EQ(file.Next(), kore::AscFile::Result::Object);
        EXPECT_EQ(file.Next(), more == 0 ? kore::AscFile::Result::End : kore::AscFile::Result::Fault);
        EXPECT_EQ(file.GetFault(),
                  more == 0 ? "" : "Bad file format in " + folder.Path("many.asc") + ": more than 10000 objects.");
    }
}

TEST(AscFile, EndsForGoodAfterItsLastObjectAndAfterAFault) {
    support::TempFolder const folder;
    kore::AscFile file;
    ASSERT_TRUE(file.Open(folder.Write("a.asc", object_of({plain_vertex}, {plain_face}))));
    EXPECT_EQ(file.Next(), kore::AscFile::Result::Object);
    EXPECT_EQ(file.Next(), kore::AscFile::Result::End);
    EXPECT_EQ(file.Next(), kore::AscFile::Result::End);
    ASSERT_TRUE(file.Open(folder.Write("b.asc", name_line + counts(0, 0))));
    EXPECT_EQ(file.Next(), kore::AscFile::Result::Fault);
    EXPECT_EQ(file.Next(), kore::AscFile::Result::End);
}

TEST(AscFile, ReadsTheShowsFilesAsThePatternsDo) {
    int files = 0;
    for (auto const& entry : std::filesystem::directory_iterator("data")) {
        if (entry.path().extension() != ".asc") continue;
        expect_same(support::read_all(entry.path()));
        ++files;
    }
    EXPECT_GE(files, 1) << "data/ holds no mesh";
}

} // namespace
