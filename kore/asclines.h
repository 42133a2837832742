#pragma once

#include <cstddef>
#include <string_view>

namespace kore {

/// Readers for vertex and face lines as exporters write them. They give the values that the patterns of scanf in
/// AscFile give, bit by bit, without locale, streams or copies; for any line that is laid out in another way, however
/// slightly, they say so and leave it to the pattern.

/// "Vertex 0:  X:1.5     Y:-2.0     Z:0.25"
/// @param text  from the start of the line on; it may go on behind it
/// @param xyz   3 floats, written on success only
/// @return how many characters the line takes, its end counted; 0 if it is not plain
std::size_t parse_plain_vertex(std::string_view text, float* xyz);

/// "Face 0:    A:0 B:1 C:2 AB:1 BC:1 CA:0"
/// @param text    from the start of the line on; it may go on behind it
/// @param fields  6 ints: A, B, C, AB, BC, CA, written on success only
/// @return how many characters the line takes, its end counted; 0 if it is not plain
std::size_t parse_plain_face(std::string_view text, int* fields);

} // namespace kore
