#include "kore/asclines.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>

#define ALWAYS_INLINE [[gnu::always_inline]] inline

namespace kore {

namespace {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// How many characters stand before the first whose highest bit is set; 8 if there is none. A switch and not a count of
/// bits: the lines of a file are so alike that the processor guesses the branch and reads on, where it would have to
/// wait for the count.
ALWAYS_INLINE int leading_characters(std::uint64_t highest_bits) {
    static_assert(std::endian::native == std::endian::little);
    switch (highest_bits & -highest_bits) {
    case 0x80:
        return 0;
    case 0x8000:
        return 1;
    case 0x800000:
        return 2;
    case 0x80000000:
        return 3;
    case 0x8000000000:
        return 4;
    case 0x800000000000:
        return 5;
    case 0x80000000000000:
        return 6;
    case 0x8000000000000000:
        return 7;
    default:
        return 8;
    }
}

/// Takes up to eight digits at once (D. Lemire, "Number parsing at a gigabyte per second", 2021, section 3). Looks at
/// eight characters.
/// @return how many there were; a ninth is the caller's to find
ALWAYS_INLINE int take_digits(char const*& at, std::uint64_t& value) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    word ^= 0x3030303030303030;
    // The highest bit of every byte that is no digit; a carry only reaches bytes behind the first of them.
    int const digits = leading_characters(((word + 0x7676767676767676) | word) & 0x8080808080808080);
    if (digits == 0) return 0;
    word <<= 64 - 8 * digits; // as if noughts stood in front
    word = word * 10 + (word >> 8);
    constexpr std::uint64_t even = 0x000000ff000000ff;
    value = ((word & even) * 0x000f424000000064 + ((word >> 16) & even) * 0x0000271000000001) >> 32;
    at += digits;
    return digits;
}

/// Walks along the usual lines: few blanks, few digits. Its steps say whether the line went on as expected, and none
/// looks for the end of the text.
class QuickCursor {
public:
    /// More than all steps along a line can look at.
    static constexpr std::size_t room = 256;

    explicit QuickCursor(char const* text) : at(text) {}

    template<std::size_t Size>
    ALWAYS_INLINE bool Text(char const (&expected)[Size]) {
        if (std::memcmp(at, expected, Size - 1) != 0) [[unlikely]]
            return false;
        at += Size - 1;
        return true;
    }

    ALWAYS_INLINE QuickCursor& Blanks() {
        for (char const* const most = at + 8; *at == ' ' && at != most;) ++at;
        return *this;
    }

    ALWAYS_INLINE bool Int(int& value) {
        std::uint64_t v = 0;
        if (take_digits(at, v) == 0) [[unlikely]]
            return false;
        value = static_cast<int>(v);
        return true;
    }

    ALWAYS_INLINE bool Flag(int& value) {
        value = *at++ - '0';
        return value == 0 || value == 1;
    }

    /// A number whose digits are few enough that they and the power of ten below them are exact as doubles; then their
    /// quotient is the double nearest to the number (W. Clinger, "How to read floating point numbers accurately",
    /// 1990). Rounded once more it is the nearest float: with at most eight digits behind the point, a number that is
    /// not itself halfway between two floats is five half steps of a double away from there, and no rounding takes it
    /// to that point.
    ALWAYS_INLINE bool Float(float& value) {
        constexpr std::uint64_t powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
        constexpr int most_digits = 15;

        bool const negative = *at == '-';
        at += negative ? 1 : 0;
        std::uint64_t whole = 0;
        std::uint64_t fraction = 0;
        int const before_point = take_digits(at, whole);
        int after_point = 0;
        if (*at == '.') after_point = take_digits(++at, fraction);
        if (before_point == 0 || before_point + after_point > most_digits) return false;

        double const number =
            static_cast<double>(whole * powers[after_point] + fraction) / static_cast<double>(powers[after_point]);
        value = static_cast<float>(negative ? -number : number);
        return *at == ' ' || *at == '\r';
    }

    char const* At() const { return at; }

private:
    char const* at;
};

/// Walks along any line, up to the end of the text.
class Cursor {
public:
    explicit Cursor(std::string_view text) : at(text.data()), end(at + text.size()) {}

    bool Text(std::string_view expected) {
        if (static_cast<std::size_t>(end - at) < expected.size()) return false;
        if (std::string_view(at, expected.size()) != expected) return false;
        at += expected.size();
        return true;
    }

    Cursor& Blanks() {
        while (at != end && (*at == ' ' || *at == '\t')) ++at;
        return *this;
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

    bool Flag(int& value) { return Int(value); }

    /// A decimal number that ends at a blank or at the end of the line.
    bool Float(float& value) {
        char const* first = at;
        if (first != end && *first == '-') ++first;
        if (first == end || !is_digit(*first)) return false;
        auto const [rest, error] = std::from_chars(at, end, value);
        at = rest;
        return error == std::errc() && (at == end || *at == ' ' || *at == '\t' || *at == '\r' || *at == '\n');
    }

    char const* At() const { return at; }

private:
    char const* at;
    char const* end;
};

template<typename C>
ALWAYS_INLINE bool walk_vertex(C& c, float* v) {
    int index = 0;
    return c.Text("Vertex ") && c.Blanks().Int(index) && c.Text(":") && //
           c.Blanks().Text("X:") && c.Blanks().Float(v[0]) &&           //
           c.Blanks().Text("Y:") && c.Blanks().Float(v[1]) &&           //
           c.Blanks().Text("Z:") && c.Blanks().Float(v[2]);
}

template<typename C>
ALWAYS_INLINE bool walk_face(C& c, int* f) {
    int index = 0;
    return c.Text("Face ") && c.Blanks().Int(index) && c.Text(":") && //
           c.Blanks().Text("A:") && c.Int(f[0]) &&                    //
           c.Blanks().Text("B:") && c.Int(f[1]) &&                    //
           c.Blanks().Text("C:") && c.Int(f[2]) &&                    //
           c.Blanks().Text("AB:") && c.Flag(f[3]) &&                  //
           c.Blanks().Text("BC:") && c.Flag(f[4]) &&                  //
           c.Blanks().Text("CA:") && c.Flag(f[5]);
}

/// How many characters the line at the start of the text takes, if it ends where the fields do, with or without its
/// carriage return; else 0.
std::size_t taken(std::string_view text, char const* at) {
    char const* const end = text.data() + text.size();
    if (at != end && *at == '\r') ++at;
    if (at != end && *at++ != '\n') return 0;
    return static_cast<std::size_t>(at - text.data());
}

/// Tries the quick cursor where there is room for it, and then the thorough one.
template<typename Field, std::size_t Count, typename Walk>
ALWAYS_INLINE std::size_t parse(std::string_view text, Field* fields, Walk walk) {
    Field f[Count] = {};
    std::size_t length = 0;
    if (text.size() >= QuickCursor::room) {
        QuickCursor quick(text.data());
        if (walk(quick, f)) length = taken(text, quick.At());
    }
    if (length == 0) {
        Cursor thorough(text);
        if (walk(thorough, f)) length = taken(text, thorough.At());
    }
    if (length != 0) std::copy_n(f, Count, fields);
    return length;
}

} // namespace

std::size_t parse_plain_vertex(std::string_view text, float* xyz) {
    return parse<float, 3>(text, xyz, [](auto& cursor, float* v) { return walk_vertex(cursor, v); });
}

std::size_t parse_plain_face(std::string_view text, int* fields) {
    return parse<int, 6>(text, fields, [](auto& cursor, int* f) { return walk_face(cursor, f); });
}

} // namespace kore
