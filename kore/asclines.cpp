// SPDX-License-Identifier: MIT
#include "kore/asclines.h"

#include <algorithm>
#include <fast_float/fast_float.h>
#include <system_error>

namespace kore {

namespace {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// Walks along a line. Its steps say whether the line went on as expected.
class Cursor {
public:
    explicit Cursor(std::string_view line) : at(line.data()), end(at + line.size()) {}

    /// A text; a blank at its start stands for any number of blanks, as in a pattern of scanf.
    bool Step(std::string_view text) {
        if (text.front() == ' ') {
            Blanks();
            text.remove_prefix(1);
        }
        if (std::string_view(at, static_cast<std::size_t>(end - at)).substr(0, text.size()) != text) return false;
        at += text.size();
        return true;
    }

    /// Decimal digits, few enough never to overflow.
    bool Step(int& value) {
        constexpr int most_digits = 9;
        Blanks();
        char const* const first = at;
        int v = 0;
        while (at != end && is_digit(*at) && at - first < most_digits) v = v * 10 + (*at++ - '0');
        value = v;
        return at != first;
    }

    /// Digits first, behind a minus sign at most: neither "inf" nor ".5".
    bool Step(float& value) {
        Blanks();
        char const* const first = at != end && *at == '-' ? at + 1 : at;
        if (first == end || !is_digit(*first)) return false;
        auto const [rest, error] = fast_float::from_chars(at, end, value);
        at = rest;
        return error == std::errc();
    }

    bool AtEnd() {
        if (at != end && *at == '\r') ++at;
        return at == end;
    }

private:
    void Blanks() {
        while (at != end && (*at == ' ' || *at == '\t')) ++at;
    }

    char const* at;
    char const* end;
};

/// @param steps  texts to match and numbers to read, in turn
/// @return whether they make up the whole line
template<typename... Steps>
bool matches(std::string_view line, Steps&&... steps) {
    Cursor cursor(line);
    return (cursor.Step(steps) && ...) && cursor.AtEnd();
}

} // namespace

bool parse_plain_vertex(std::string_view line, float* xyz) {
    int index = 0;
    float v[3];
    if (!matches(line, "Vertex ", index, ":", " X:", v[0], " Y:", v[1], " Z:", v[2])) return false;
    std::copy_n(v, 3, xyz);
    return true;
}

bool parse_plain_face(std::string_view line, int* fields) {
    int index = 0;
    int f[6];
    if (!matches(line, "Face ", index, ":", " A:", f[0], " B:", f[1], " C:", f[2], " AB:", f[3], " BC:", f[4],
                 " CA:", f[5])) {
        return false;
    }
    std::copy_n(f, 6, fields);
    return true;
}

} // namespace kore
