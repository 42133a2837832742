#include "kore/asclines.h"

#include <algorithm>
#include <charconv>

namespace kore {

namespace {

/// Walks along a line; every step says whether the line went on as expected.
class Cursor {
public:
    explicit Cursor(std::string_view line) : at(line.data()), end(line.data() + line.size()) {}

    bool Text(std::string_view expected) {
        if (static_cast<std::size_t>(end - at) < expected.size()) return false;
        if (std::string_view(at, expected.size()) != expected) return false;
        at += expected.size();
        return true;
    }

    bool Blanks() {
        while (at != end && (*at == ' ' || *at == '\t')) ++at;
        return true;
    }

    /// Plain decimal digits, few enough never to overflow.
    bool Int(int& value) {
        constexpr int most_digits = 9;
        int v = 0;
        int digits = 0;
        for (; at != end && IsDigit(*at) && digits < most_digits; ++at, ++digits) v = v * 10 + (*at - '0');
        if (digits == 0 || (at != end && IsDigit(*at))) return false;
        value = v;
        return true;
    }

    /// A plain decimal number that ends at a blank or at the end of the line.
    bool Float(float& value) {
        char const* first = at;
        if (first != end && *first == '-') ++first;
        if (first == end || !IsDigit(*first)) return false;
        auto const [rest, error] = std::from_chars(at, end, value);
        if (error != std::errc()) return false;
        at = rest;
        return at == end || *at == ' ' || *at == '\t' || *at == '\r';
    }

    /// The end of the line, with or without its carriage return.
    bool End() {
        if (at != end && *at == '\r') ++at;
        return at == end;
    }

private:
    static bool IsDigit(char c) { return c >= '0' && c <= '9'; }

    char const* at;
    char const* end;
};

} // namespace

bool parse_plain_vertex(std::string_view line, float* xyz) {
    Cursor c(line);
    int index = 0;
    float v[3] = {0, 0, 0};
    bool const plain = c.Text("Vertex ") && c.Blanks() && c.Int(index) && c.Text(":") && //
                       c.Blanks() && c.Text("X:") && c.Blanks() && c.Float(v[0]) &&      //
                       c.Blanks() && c.Text("Y:") && c.Blanks() && c.Float(v[1]) &&      //
                       c.Blanks() && c.Text("Z:") && c.Blanks() && c.Float(v[2]) && c.End();
    if (plain) std::copy_n(v, 3, xyz);
    return plain;
}

bool parse_plain_face(std::string_view line, int* fields) {
    Cursor c(line);
    int index = 0;
    int f[6] = {0, 0, 0, 0, 0, 0};
    bool const plain = c.Text("Face ") && c.Blanks() && c.Int(index) && c.Text(":") && //
                       c.Blanks() && c.Text("A:") && c.Blanks() && c.Int(f[0]) &&      //
                       c.Blanks() && c.Text("B:") && c.Blanks() && c.Int(f[1]) &&      //
                       c.Blanks() && c.Text("C:") && c.Blanks() && c.Int(f[2]) &&      //
                       c.Blanks() && c.Text("AB:") && c.Blanks() && c.Int(f[3]) &&     //
                       c.Blanks() && c.Text("BC:") && c.Blanks() && c.Int(f[4]) &&     //
                       c.Blanks() && c.Text("CA:") && c.Blanks() && c.Int(f[5]) && c.End();
    if (plain) std::copy_n(f, 6, fields);
    return plain;
}

} // namespace kore
