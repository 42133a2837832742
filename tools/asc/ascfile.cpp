// SPDX-License-Identifier: MIT
#include "tools/asc/ascfile.h"

#include "kore/asclimits.h"
#include "kore/readfile.h"

#include <charconv>
#include <cmath>

namespace asc {

namespace {

constexpr std::size_t most_faults = 1000; ///< of the layout of one file; the rest of it is not read

constexpr std::string_view name_start = "Named object: \"";
constexpr std::array corner_names{"A:", "B:", "C:"};
constexpr std::array edge_names{"AB:", "BC:", "CA:"};

/// Splits the text of one line into fixed words and numbers; any mismatch makes `ok` false for good.
class Scanner {
public:
    explicit Scanner(std::string_view line) : rest(line) {}

    Scanner& Word(std::string_view expected) {
        ok = ok && rest.starts_with(expected);
        if (ok) rest.remove_prefix(expected.size());
        return *this;
    }
    /// One space or more.
    Scanner& Blanks() {
        ok = ok && rest.starts_with(' ');
        while (rest.starts_with(' ')) rest.remove_prefix(1);
        return *this;
    }
    template<typename Value>
    Scanner& Number(Value& value) {
        auto const [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
        ok = ok && error == std::errc{};
        if (ok) rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
        return *this;
    }
    bool Done() const { return ok && rest.empty(); }

private:
    std::string_view rest;
    bool ok = true;
};

struct Line {
    int number = 0;
    std::string_view text; ///< without its line end
};

/// Returns the lines of a text one by one and records wrong line ends.
class Lines {
public:
    Lines(std::string_view whole, std::vector<Fault>& out) : text(whole), faults(out) {}

    bool Next(Line& line) {
        if (text.empty() || faults.size() >= most_faults) return false;
        std::size_t const end = text.find('\n');
        line.number = ++count;
        line.text = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (end == std::string_view::npos) faults.push_back({count, "the last line has no line end"});
        if (line.text.ends_with('\r')) {
            line.text.remove_suffix(1);
        } else if (end != std::string_view::npos) {
            faults.push_back({count, "the line does not end in carriage return and line feed"});
        }
        return true;
    }
    bool AtEnd() const { return text.empty(); }

private:
    std::string_view text;
    std::vector<Fault>& faults;
    int count = 0;
};

/// Reads one object after the other.
class Parser {
public:
    explicit Parser(std::string_view text) : lines(text, file.faults) {}

    ReadFile Run() {
        if (!lines.Next(line)) AddFault("the file is empty");
        while (line.number > 0) {
            bool const good = ParseObject();
            if (good && file.objects.size() == kore::max_mesh_objects) {
                AddFault("more than " + std::to_string(kore::max_mesh_objects) + " objects");
                break;
            }
            if (good) file.objects.push_back(std::move(current));
            if (!ToNextObject(good)) break;
        }
        if (file.faults.size() >= most_faults) {
            file.faults.resize(most_faults);
            file.faults.push_back({line.number, "too many faults; the rest is not read"});
        }
        return std::move(file);
    }

private:
    void AddFault(std::string text) { file.faults.push_back({line.number, std::move(text)}); }

    bool ParseObject() {
        current = {};
        current.line = line.number;
        int vertices = 0, faces = 0;
        if (!ParseName() || !ParseHeader(vertices, faces)) return false;
        if (!ParseMarker("Vertex list:")) return false;
        for (int i = 0; i < vertices; ++i) {
            if (!ParseVertex(i)) return false;
        }
        if (!ParseMarker("Face list:")) return false;
        for (int i = 0; i < faces; ++i) {
            if (!ParseFace(i)) return false;
        }
        return true;
    }

    bool ParseName() {
        std::string_view text = line.text;
        if (!text.starts_with(name_start) || !text.ends_with('"') || text.size() < name_start.size() + 2) {
            AddFault("expected a line like: Named object: \"name\"");
            return false;
        }
        text.remove_prefix(name_start.size());
        text.remove_suffix(1);
        current.object.name = text;
        for (auto const& earlier : file.objects) {
            if (earlier.object.name == current.object.name) {
                AddFault("the name '" + current.object.name + "' stands at line " + std::to_string(earlier.line) +
                         " too");
            }
        }
        return true;
    }

    bool ParseHeader(int& vertices, int& faces) {
        if (!NextLine("the mesh header")) return false;
        Scanner scanner(line.text);
        scanner.Word("Tri-mesh, Vertices:").Blanks().Number(vertices).Blanks().Word("Faces:").Blanks().Number(faces);
        if (scanner.Done() && vertices > 0 && faces > 0) return true;
        AddFault("expected a line like: Tri-mesh, Vertices: 8     Faces: 12");
        return false;
    }

    bool ParseMarker(std::string_view text) {
        if (!NextLine(std::string(text))) return false;
        if (line.text == text) return true;
        AddFault("expected '" + std::string(text) + "'; the header's counts may be wrong");
        return false;
    }

    bool ParseVertex(int index) {
        if (!NextLine("vertex " + std::to_string(index))) return false;
        int at = -1;
        Vec3 p;
        Scanner scanner(line.text);
        scanner.Word("Vertex ").Number(at).Word(":").Blanks();
        scanner.Word("X:").Number(p.x).Blanks().Word("Y:").Number(p.y).Blanks().Word("Z:").Number(p.z);
        auto const within_range = [](double v) { return std::abs(v) <= most_coordinate; }; // not for NaN
        if (!scanner.Done() || at != index) {
            AddFault("expected vertex " + std::to_string(index) + " with X, Y and Z; the header's counts may be wrong");
            return false;
        }
        if (!within_range(p.x) || !within_range(p.y) || !within_range(p.z)) {
            AddFault("a coordinate is not a number from -1000000 to 1000000");
            return false;
        }
        current.object.vertices.push_back(p);
        current.vertex_lines.push_back(line.number);
        return true;
    }

    bool ParseFace(int index) {
        if (!NextLine("face " + std::to_string(index))) return false;
        int at = -1;
        Face f;
        Scanner scanner(line.text);
        scanner.Word("Face ").Number(at).Word(":");
        for (std::size_t i = 0; i < 3; ++i) scanner.Blanks().Word(corner_names[i]).Number(f.v[i]);
        for (std::size_t i = 0; i < 3; ++i) scanner.Blanks().Word(edge_names[i]).Number(f.edge[i]);
        if (!scanner.Done() || at != index) {
            AddFault("expected face " + std::to_string(index) +
                     " with A, B, C, AB, BC and CA; the header's counts may be wrong");
            return false;
        }
        int const vertices = static_cast<int>(current.object.vertices.size());
        for (int v : f.v) {
            if (v < 0 || v >= vertices) {
                AddFault("vertex index " + std::to_string(v) + " is out of range: there are " +
                         std::to_string(vertices));
                return false;
            }
        }
        for (int flag : f.edge) {
            if (flag != 0 && flag != 1) {
                AddFault("edge flag " + std::to_string(flag) + " is neither 0 nor 1");
                return false;
            }
        }
        current.object.faces.push_back(f);
        current.face_lines.push_back(line.number);
        return true;
    }

    /// Goes to the first line of the next object; after a fault that is the next line with a name.
    bool ToNextObject(bool good) {
        if (good) {
            if (!lines.Next(line)) return false;
            if (!line.text.empty()) {
                AddFault("expected one blank line after the last face; the header's counts may be wrong");
                return SkipToName();
            }
            if (lines.AtEnd()) {
                AddFault("the file ends with a blank line");
                return false;
            }
            return lines.Next(line);
        }
        return SkipToName();
    }

    bool SkipToName() {
        while (lines.Next(line)) {
            if (line.text.starts_with(name_start)) return true;
        }
        return false;
    }

    bool NextLine(std::string const& wanted) {
        if (lines.Next(line)) return true;
        AddFault("the file ends where " + wanted + " should follow");
        return false;
    }

    ReadFile file;
    Lines lines;
    Line line;
    ReadObject current;
};

std::string number_text(double value) {
    std::array<char, 64> buffer{};
    auto const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 6).ptr;
    std::string text(buffer.data(), end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

} // namespace

ReadFile parse(std::string_view text) { return Parser(text).Run(); }

double rounded(double coordinate) {
    double const value = std::round(coordinate * 1e6) / 1e6;
    return value == 0.0 ? 0.0 : value; // no negative zero
}

std::string write(std::vector<Object> const& objects) {
    constexpr auto count = [](auto value) { return std::to_string(value); };
    std::string out;
    for (Object const& object : objects) {
        if (!out.empty()) out += "\r\n";
        out += std::string(name_start) + object.name + "\"\r\n";
        out += "Tri-mesh, Vertices: " + count(object.vertices.size()) + "     Faces: " + count(object.faces.size());
        out += "\r\nVertex list:\r\n";
        for (std::size_t i = 0; i < object.vertices.size(); ++i) {
            Vec3 const& p = object.vertices[i];
            out += "Vertex " + count(i) + ":  X:" + number_text(p.x) + " Y:" + number_text(p.y);
            out += " Z:" + number_text(p.z) + "\r\n";
        }
        out += "Face list:\r\n";
        for (std::size_t i = 0; i < object.faces.size(); ++i) {
            auto const& [v, edge] = object.faces[i];
            out += "Face " + count(i) + ":    A:" + count(v[0]) + " B:" + count(v[1]) + " C:" + count(v[2]);
            out += " AB:" + count(edge[0]) + " BC:" + count(edge[1]) + " CA:" + count(edge[2]) + "\r\n";
        }
    }
    return out;
}

bool read_text(std::string const& path, std::string& text) {
    kore::FileText bytes;
    if (!kore::read_file(path, bytes, kore::max_mesh_file)) return false;
    text = bytes.View();
    return true;
}

} // namespace asc
