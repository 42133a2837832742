// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Window/Event.hpp>
#include <imgui.h>

/// Dear ImGui on a window of SFML: the mouse in, drawing out. The OpenGL state of the show is as it was afterwards.
class Overlay {
public:
    /// Needs the window's OpenGL context current, as do all operations.
    Overlay();
    ~Overlay();
    Overlay(Overlay const&) = delete;
    Overlay& operator=(Overlay const&) = delete;

    /// Passes the mouse on.
    static void Handle(sf::Event const& event);

    /// Begins a frame.
    /// @param width, height  of the window, pixels
    /// @param seconds        since the last frame
    void Begin(unsigned int width, unsigned int height, float seconds);

    /// Draws what was shown since Begin.
    void End();

    /// Whether the mouse is on it, and not on the show.
    static bool HasMouse() { return ImGui::GetIO().WantCaptureMouse; }

    /// Window pixels for each pixel of a design that is 720 high.
    float Scale() const { return scale; }

    ImFont* Plain() const { return plain; }
    ImFont* Small() const { return small; }
    ImFont* Large() const { return large; }

private:
    void LoadFonts();

    float scale = 0;
    ImFont* plain = nullptr;
    ImFont* small = nullptr;
    ImFont* large = nullptr;
};
