// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Window/Keyboard.hpp>
#include <span>

class Desk;

/// One key of a rehearsal.
struct KeyRow {
    sf::Keyboard::Key code;
    char const* name; ///< as on the keyboard
    char const* does;
    void (*act)(Desk& desk);
};

/// All of them, in the order in which they are shown.
std::span<KeyRow const> key_table();
