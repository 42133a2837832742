// SPDX-License-Identifier: MIT
#include "tests/support/glrecorder.h"

#include "tests/support/glstate.h"

#include <cstdio>
#include <cstring>

namespace gl {

namespace detail {

State& state() {
    static State the_state;
    return the_state;
}

namespace {

/// Adds eight bytes (after Fowler, Noll and Vo's FNV-1a, eight bytes at a time).
void add(std::uint64_t& sum, std::uint64_t bits) {
    constexpr std::uint64_t prime = 1099511628211ULL;
    sum = ((sum ^ bits) * prime) ^ (sum >> 29);
}

void add(std::uint64_t& sum, std::string_view text) {
    for (char const c : text) add(sum, static_cast<unsigned char>(c));
}

void add(std::uint64_t& sum, double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    add(sum, bits);
}

std::string as_text(std::string_view name, std::initializer_list<double> numbers, std::string_view words) {
    std::string text(name);
    std::string arguments(words);
    for (double const number : numbers) {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%g", number == 0 ? 0.0 : number); // no sign on a zero
        if (!arguments.empty()) arguments += ',';
        arguments += buffer;
    }
    if (!arguments.empty()) text += '(' + arguments + ')';
    return text;
}

std::string joined(std::vector<std::string> const& calls) {
    std::string text;
    for (std::string const& call : calls) {
        if (!text.empty()) text += ' ';
        text += call;
    }
    return text;
}

} // namespace

bool note(std::string_view name, std::initializer_list<double> numbers, std::string_view words,
          std::uint64_t const* list_sum) {
    State& s = state();
    ++s.count;
    std::uint64_t& sum = s.compiling ? s.lists[s.compiling].sum : s.sum;
    add(sum, name);
    if (list_sum) {
        add(sum, *list_sum);
    } else {
        for (double const number : numbers) add(sum, number);
        add(sum, words);
    }
    if (s.logging == Logging::Text) {
        auto& log = s.compiling ? s.lists[s.compiling].calls : s.log;
        log.push_back(as_text(name, numbers, words));
    }
    return s.compiling == 0;
}

void raise(char const* error, std::string_view call) {
    state().raised.push_back(std::string(error) + ' ' + std::string(call));
}

} // namespace detail

using detail::state;

void reset(Logging logging) {
    state() = detail::State();
    state().logging = logging;
    state().model_view = {detail::identity()};
    state().projection = {detail::identity()};
    clear_log();
}

void clear_log() {
    state().log.clear();
    state().drawn.clear();
    state().raised.clear();
    state().count = 0;
    state().sum = detail::empty_sum;
}

std::string calls() { return detail::joined(state().log); }
std::vector<std::string> const& call_list() { return state().log; }
std::uint64_t call_count() { return state().count; }
std::uint64_t checksum() { return state().sum; }
std::vector<Draw> const& draws() { return state().drawn; }

std::string list_content(unsigned int list) {
    auto const found = state().lists.find(list);
    return found == state().lists.end() ? "" : detail::joined(found->second.calls);
}

void name_list(unsigned int list, std::string const& name) { state().names[list] = name; }
std::size_t list_count() { return state().lists.size(); }
Matrix const& model_view() { return state().model_view.back(); }
std::size_t model_view_depth() { return state().model_view.size(); }
Matrix const& projection() { return state().projection.back(); }
bool inside_primitive() { return state().in_primitive; }
std::vector<std::string> const& errors() { return state().raised; }

std::array<double, 3> transform(Matrix const& m, double x, double y, double z) {
    std::array<double, 3> out{};
    for (std::size_t row = 0; row < 3; ++row) out[row] = m[row] * x + m[4 + row] * y + m[8 + row] * z + m[12 + row];
    return out;
}

} // namespace gl
