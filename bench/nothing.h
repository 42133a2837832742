// SPDX-License-Identifier: MIT
#pragma once

/// An OpenGL on which nothing is drawn; which one is a matter of linking.
namespace nothing {

/// Readies it for the show.
void open();

/// What it wants after each frame.
void end_frame();

} // namespace nothing
