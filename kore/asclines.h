// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace kore {

/// Readers for vertex and face lines as exporters write them. They give the values that the patterns of scanf in
/// AscFile give, bit by bit, whatever the locale; a line that is laid out in another way, however slightly, they refuse
/// and leave to the pattern.

/// "Vertex 0:  X:1.5     Y:-2.0     Z:0.25"
/// @param line  without its line feed
/// @param xyz   3 floats, written on success only
/// @return false if the line is not plain
bool parse_plain_vertex(std::string_view line, float* xyz);

/// "Face 0:    A:0 B:1 C:2 AB:1 BC:1 CA:0"
/// @param line    without its line feed
/// @param fields  6 ints: A, B, C, AB, BC, CA, written on success only
/// @return false if the line is not plain
bool parse_plain_face(std::string_view line, int* fields);

} // namespace kore
