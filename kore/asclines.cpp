#include "kore/asclines.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>

namespace kore {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// Walks along a line; every step says whether the line went on as expected.
class Cursor {
public:
    explicit Cursor(std::string_view text) : begin(text.data()), at(begin), end(begin + text.size()) {}

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
        char const* const first = at;
        int v = 0;
        while (at != end && is_digit(*at)) {
            if (at - first == most_digits) return false;
            v = v * 10 + (*at++ - '0');
        }
        value = v;
        return at != first;
    }

    /// A plain decimal number that ends at a blank or at the end of the line.
    bool Float(float& value) {
        char const* const first = at;
        if (ShortFloat(value) && AtItsEnd()) return true;
        at = first;
        return AnyFloat(value) && AtItsEnd();
    }

    /// The end of the line, with or without its carriage return.
    bool LineEnd() {
        if (at != end && *at == '\r') ++at;
        if (at == end) return true;
        return *at++ == '\n';
    }

    std::size_t Taken() const { return static_cast<std::size_t>(at - begin); }

private:
    bool AtItsEnd() const { return at == end || *at == ' ' || *at == '\t' || *at == '\r' || *at == '\n'; }

    /// Digits with a point among them, few enough that whole number and power of ten are exact as doubles; then their
    /// quotient is the double nearest to the number (W. Clinger, "How to read floating point numbers accurately",
    /// 1990). Rounded once more it is the nearest float, unless it lies just between two of them: those are left alone.
    bool ShortFloat(float& value) {
        constexpr int most_digits = 15;
        constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        constexpr std::uint64_t tail = (std::uint64_t{1} << 29) - 1; // what a double has more than a float
        constexpr std::uint64_t halfway = std::uint64_t{1} << 28;

        bool const negative = at != end && *at == '-';
        if (negative) ++at;
        std::uint64_t whole = 0;
        int digits = 0;
        for (; at != end && is_digit(*at) && digits <= most_digits; ++at, ++digits) Append(whole);
        if (digits == 0 || at == end || *at != '.') return false;
        int const before_point = digits;
        for (++at; at != end && is_digit(*at) && digits <= most_digits; ++at, ++digits) Append(whole);
        if (digits > most_digits) return false;

        double const number = static_cast<double>(whole) / powers[digits - before_point];
        if ((std::bit_cast<std::uint64_t>(number) & tail) == halfway) return false;
        value = static_cast<float>(negative ? -number : number);
        return true;
    }

    void Append(std::uint64_t& whole) const { whole = whole * 10 + static_cast<std::uint64_t>(*at - '0'); }

    /// Any number in decimal notation.
    bool AnyFloat(float& value) {
        char const* first = at;
        if (first != end && *first == '-') ++first;
        if (first == end || !is_digit(*first)) return false;
        auto const [rest, error] = std::from_chars(at, end, value);
        at = rest;
        return error == std::errc();
    }

    char const* begin;
    char const* at;
    char const* end;
};

} // namespace

std::size_t parse_plain_vertex(std::string_view text, float* xyz) {
    Cursor c(text);
    int index = 0;
    float v[3] = {0, 0, 0};
    bool const plain = c.Text("Vertex ") && c.Blanks() && c.Int(index) && c.Text(":") && //
                       c.Blanks() && c.Text("X:") && c.Blanks() && c.Float(v[0]) &&      //
                       c.Blanks() && c.Text("Y:") && c.Blanks() && c.Float(v[1]) &&      //
                       c.Blanks() && c.Text("Z:") && c.Blanks() && c.Float(v[2]) && c.LineEnd();
    if (!plain) return 0;
    std::copy_n(v, 3, xyz);
    return c.Taken();
}

std::size_t parse_plain_face(std::string_view text, int* fields) {
    Cursor c(text);
    int index = 0;
    int f[6] = {0, 0, 0, 0, 0, 0};
    bool const plain = c.Text("Face ") && c.Blanks() && c.Int(index) && c.Text(":") && //
                       c.Blanks() && c.Text("A:") && c.Blanks() && c.Int(f[0]) &&      //
                       c.Blanks() && c.Text("B:") && c.Blanks() && c.Int(f[1]) &&      //
                       c.Blanks() && c.Text("C:") && c.Blanks() && c.Int(f[2]) &&      //
                       c.Blanks() && c.Text("AB:") && c.Blanks() && c.Int(f[3]) &&     //
                       c.Blanks() && c.Text("BC:") && c.Blanks() && c.Int(f[4]) &&     //
                       c.Blanks() && c.Text("CA:") && c.Blanks() && c.Int(f[5]) && c.LineEnd();
    if (!plain) return 0;
    std::copy_n(f, 6, fields);
    return c.Taken();
}

} // namespace kore
