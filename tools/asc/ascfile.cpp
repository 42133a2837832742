#include "tools/asc/ascfile.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace asc {

namespace {

constexpr std::string_view name_start = "Named object: \"";

/// Cuts the text of one line into fixed words and numbers; any mismatch makes `ok` false for good.
class Scanner {
public:
    explicit Scanner(std::string_view line) : rest(line) {}

    Scanner& word(std::string_view expected) {
        ok = ok && rest.starts_with(expected);
        if (ok) rest.remove_prefix(expected.size());
        return *this;
    }
    /// One blank or more.
    Scanner& blanks() {
        ok = ok && rest.starts_with(' ');
        while (rest.starts_with(' ')) rest.remove_prefix(1);
        return *this;
    }
    template<typename Number>
    Scanner& number(Number& value) {
        auto const [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
        ok = ok && error == std::errc{};
        if (ok) rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
        return *this;
    }
    bool done() const { return ok && rest.empty(); }

private:
    std::string_view rest;
    bool ok = true;
};

struct Line {
    int number = 0;
    std::string_view text; ///< without its line end
};

/// Hands out the lines of a text and notes wrong line ends.
class Lines {
public:
    Lines(std::string_view whole, std::vector<Fault>& out) : text(whole), faults(out) {}

    bool next(Line& line) {
        if (text.empty()) return false;
        std::size_t const end = text.find('\n');
        line.number = ++count;
        line.text = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (end == std::string_view::npos) faults.push_back({count, "the last line has no line end"});
        if (line.text.ends_with('\r'))
            line.text.remove_suffix(1);
        else if (end != std::string_view::npos)
            faults.push_back({count, "the line does not end in carriage return and line feed"});
        return true;
    }
    bool at_end() const { return text.empty(); }

private:
    std::string_view text;
    std::vector<Fault>& faults;
    int count = 0;
};

/// Reads one object after the other.
class Parser {
public:
    explicit Parser(std::string_view text) : lines(text, file.faults) {}

    ReadFile run() {
        if (!lines.next(line)) fault("the file is empty");
        while (line.number > 0) {
            bool const good = object();
            if (good) file.objects.push_back(std::move(current));
            if (!to_next_object(good)) break;
        }
        return std::move(file);
    }

private:
    void fault(std::string text) { file.faults.push_back({line.number, std::move(text)}); }

    bool object() {
        current = {};
        current.line = line.number;
        int vertices = 0, faces = 0;
        if (!name() || !header(vertices, faces)) return false;
        if (!marker("Vertex list:")) return false;
        for (int i = 0; i < vertices; ++i)
            if (!vertex(i)) return false;
        if (!marker("Face list:")) return false;
        for (int i = 0; i < faces; ++i)
            if (!face(i)) return false;
        return true;
    }

    bool name() {
        std::string_view text = line.text;
        if (!text.starts_with(name_start) || !text.ends_with('"') || text.size() < name_start.size() + 2) {
            fault("expected a line like: Named object: \"name\"");
            return false;
        }
        text.remove_prefix(name_start.size());
        text.remove_suffix(1);
        current.object.name = text;
        for (auto const& earlier : file.objects)
            if (earlier.object.name == current.object.name)
                fault("the name '" + current.object.name + "' stands at line " + std::to_string(earlier.line) + " too");
        return true;
    }

    bool header(int& vertices, int& faces) {
        if (!next("the mesh header")) return false;
        Scanner scanner(line.text);
        scanner.word("Tri-mesh, Vertices:").blanks().number(vertices).blanks().word("Faces:").blanks().number(faces);
        if (scanner.done() && vertices > 0 && faces > 0) return true;
        fault("expected a line like: Tri-mesh, Vertices: 8     Faces: 12");
        return false;
    }

    bool marker(std::string_view text) {
        if (!next(std::string(text))) return false;
        if (line.text == text) return true;
        fault("expected '" + std::string(text) + "'; the header's counts may be wrong");
        return false;
    }

    bool vertex(int index) {
        if (!next("vertex " + std::to_string(index))) return false;
        int at = -1;
        Vec3 p;
        Scanner scanner(line.text);
        scanner.word("Vertex ").number(at).word(":").blanks();
        scanner.word("X:").number(p.x).blanks().word("Y:").number(p.y).blanks().word("Z:").number(p.z);
        if (!scanner.done() || at != index || !std::isfinite(p.x + p.y + p.z)) {
            fault("expected vertex " + std::to_string(index) + " with X, Y and Z; the header's counts may be wrong");
            return false;
        }
        current.object.vertices.push_back(p);
        current.vertex_lines.push_back(line.number);
        return true;
    }

    bool face(int index) {
        if (!next("face " + std::to_string(index))) return false;
        int at = -1;
        Face f;
        Scanner scanner(line.text);
        scanner.word("Face ").number(at).word(":").blanks();
        scanner.word("A:")
            .number(f.v[0])
            .blanks()
            .word("B:")
            .number(f.v[1])
            .blanks()
            .word("C:")
            .number(f.v[2])
            .blanks();
        scanner.word("AB:").number(f.edge[0]).blanks().word("BC:").number(f.edge[1]).blanks();
        scanner.word("CA:").number(f.edge[2]);
        if (!scanner.done() || at != index) {
            fault("expected face " + std::to_string(index) +
                  " with A, B, C, AB, BC and CA; the header's counts may be wrong");
            return false;
        }
        int const vertices = static_cast<int>(current.object.vertices.size());
        for (int v : f.v)
            if (v < 0 || v >= vertices) {
                fault("vertex index " + std::to_string(v) + " is out of range: there are " + std::to_string(vertices));
                return false;
            }
        for (int flag : f.edge)
            if (flag != 0 && flag != 1) {
                fault("edge flag " + std::to_string(flag) + " is neither 0 nor 1");
                return false;
            }
        current.object.faces.push_back(f);
        current.face_lines.push_back(line.number);
        return true;
    }

    /// Steps to the first line of the next object; after a fault that is the next line with a name.
    bool to_next_object(bool good) {
        if (good) {
            if (!lines.next(line)) return false;
            if (!line.text.empty()) {
                fault("expected one blank line after the last face; the header's counts may be wrong");
                return skip_to_name();
            }
            if (lines.at_end()) {
                fault("the file ends with a blank line");
                return false;
            }
            return lines.next(line);
        }
        return skip_to_name();
    }

    bool skip_to_name() {
        while (lines.next(line))
            if (line.text.starts_with(name_start)) return true;
        return false;
    }

    bool next(std::string const& wanted) {
        if (lines.next(line)) return true;
        fault("the file ends where " + wanted + " should follow");
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

ReadFile parse(std::string_view text) { return Parser(text).run(); }

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

namespace {

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

} // namespace

bool read_text(std::string const& path, std::string& text) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return false;
    Stream const in(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!in) return false;
    text.clear();
    std::array<char, 65536> buffer{};
    while (std::size_t const n = std::fread(buffer.data(), 1, buffer.size(), in.get())) text.append(buffer.data(), n);
    return std::ferror(in.get()) == 0;
}

bool write_text(std::string const& path, std::string const& text) {
    std::FILE* const out = std::fopen(path.c_str(), "wb");
    if (!out) return false;
    bool const written = std::fwrite(text.data(), 1, text.size(), out) == text.size();
    return std::fclose(out) == 0 && written;
}

} // namespace asc
