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

constexpr std::uint64_t fnv_prime = 1099511628211ULL; // Fowler, Noll and Vo's hash, taken eight bytes at a time
constexpr std::uint64_t fnv_offset = 14695981039346656037ULL;

void add_to_sum(std::string_view name, std::initializer_list<double> numbers, std::string_view words) {
    std::uint64_t& sum = state().sum;
    auto const add = [&sum](std::uint64_t bits) { sum = ((sum ^ bits) * fnv_prime) ^ (sum >> 29); };
    for (char const c : name) add(static_cast<unsigned char>(c));
    for (double const number : numbers) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        add(bits);
    }
    for (char const c : words) add(static_cast<unsigned char>(c));
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

bool note(std::string_view name, std::initializer_list<double> numbers, std::string_view words) {
    State& s = state();
    ++s.count;
    add_to_sum(name, numbers, words);
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
    state().sum = detail::fnv_offset;
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
